#include "theme/opacity.h"

#include <algorithm>

namespace orvelle {

QColor withOpacity(const QColor& color, double opacity) {
    QColor result = color;
    result.setAlphaF(static_cast<float>(std::clamp(color.alphaF() * opacity, 0.0, 1.0)));
    return result;
}

} // namespace orvelle
