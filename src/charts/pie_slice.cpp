#include "charts/pie_slice.h"

#include "charts/ring_rules.h"

#include <algorithm>

namespace orvelle {

QPainterPath PieSlice::path(const QRectF& rectangle) const {
    const double diameter = std::min(rectangle.width(), rectangle.height());
    const double sweep = wedgeSweep(startAngle, endAngle);
    QPainterPath wedge;
    if (!(diameter > 0) || sweep <= 0)
        return wedge;
    QRectF disc(0, 0, diameter, diameter);
    disc.moveCenter(rectangle.center());
    wedge.moveTo(disc.center());
    wedge.arcTo(disc, -startAngle, -sweep); // Qt counts angles against the clock
    wedge.closeSubpath();
    return wedge;
}

} // namespace orvelle
