#pragma once

#include <QColor>

/// The desktop's named colours in its dark appearance, sRGB. Views and themes name these instead of spelling
/// numbers.
namespace orvelle::SystemColors {

inline constexpr QColor red(255, 69, 58);
inline constexpr QColor orange(255, 159, 10);
inline constexpr QColor yellow(255, 214, 10);
inline constexpr QColor green(50, 215, 75);
inline constexpr QColor cyan(90, 200, 245);
inline constexpr QColor blue(10, 132, 255);
inline constexpr QColor purple(191, 90, 242);
inline constexpr QColor grey(152, 152, 157);
inline constexpr QColor white(255, 255, 255);

} // namespace orvelle::SystemColors
