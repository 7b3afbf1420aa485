#pragma once

#include <QColor>

namespace orvelle {

/// `color` with its opacity multiplied by `opacity`: what was translucent becomes more so.
[[nodiscard]] QColor withOpacity(const QColor& color, double opacity);

} // namespace orvelle
