#pragma once

#include <QColor>

/// The colours of text on the dark bar and the dark panels.
namespace orvelle::LabelColors {

/// Values and titles.
inline constexpr QColor primary(255, 255, 255);

/// Captions, and values that are not known: white at opacity 0.55.
inline constexpr QColor secondary(255, 255, 255, 140);

} // namespace orvelle::LabelColors
