#pragma once

#include <QColor>

/// The colours of text on the dark bar and the dark panels.
namespace orvelle::labelColors {

/// Values and titles: white.
[[nodiscard]] inline QColor primary() {
    return QColor::fromRgbF(1, 1, 1);
}

/// Captions and values that are not known: white at opacity 0.55.
[[nodiscard]] inline QColor secondary() {
    return QColor::fromRgbF(1, 1, 1, 0.55F);
}

} // namespace orvelle::labelColors
