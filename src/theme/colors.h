#pragma once

#include <QColor>
#include <QString>

#include <optional>

/// The named colours of the program, and what is computed with colours. All are sRGB.
namespace orvelle {

/// The desktop's named colours in its dark appearance.
namespace SystemColors {

inline constexpr QColor red(255, 69, 58);
inline constexpr QColor orange(255, 159, 10);
inline constexpr QColor yellow(255, 214, 10);
inline constexpr QColor green(50, 215, 75);
inline constexpr QColor cyan(90, 200, 245);
inline constexpr QColor blue(10, 132, 255);
inline constexpr QColor purple(191, 90, 242);
inline constexpr QColor grey(152, 152, 157);
inline constexpr QColor white(255, 255, 255);

} // namespace SystemColors

/// The colours of text on the dark bar and the dark panels.
namespace LabelColors {

/// Values and titles.
inline constexpr QColor primary(255, 255, 255);

/// Captions and unknown values: white at opacity 0.55.
inline constexpr QColor secondary(255, 255, 255, 140);

} // namespace LabelColors

/// `color` with its own opacity multiplied by `opacity`.
[[nodiscard]] QColor withOpacity(const QColor& color, double opacity);

/// The opaque colour that "#RRGGBB" spells, or nothing for another text. White space around the text and
/// every "#" in it are ignored; six characters must remain. A "0x" and white space in front of the digits are
/// skipped, and the digits end at the first other character: "12ZZ34" is the number 0x12, a dark blue.
[[nodiscard]] std::optional<QColor> hexToColor(const QString& text);

/// "#RRGGBB" in upper case. Each component is rounded down to a step of 1/255, and the opacity is dropped. An
/// invalid colour gives white.
[[nodiscard]] QString colorToHex(const QColor& color);

} // namespace orvelle
