#pragma once

#include <QColor>
#include <QString>

#include <optional>

/// Colours as texts of "#" and six hexadecimal digits, two each for red, green and blue in sRGB.
namespace orvelle {

/// The opaque colour, or nothing when the text is none. White space around the text and every "#" in it are
/// left out; six characters must remain. A "0x" and white space in front are skipped and the digits end at
/// the first other character, so "12ZZ34" is the number 0x12: a dark blue.
[[nodiscard]] std::optional<QColor> hexToColor(const QString& text);

/// Upper-case digits; each component is cut down to a step of 1/255, never rounded up. The opacity is left
/// out. An invalid colour gives white.
[[nodiscard]] QString colorToHex(const QColor& color);

} // namespace orvelle
