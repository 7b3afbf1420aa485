#include "charts/ring_shades.h"

#include <QPointF>

#include <algorithm>

namespace orvelle {
namespace {

// Qt measures the angles of a conical gradient in degrees from three o'clock and its positions against the
// clock, so what is to run clockwise is written backwards.
constexpr double threeOClock = 0;
constexpr double gradientStart = 90;

} // namespace

QConicalGradient ringShade(const QColor& start, const QColor& end, double fraction) {
    constexpr double hairsbreadth = 1e-4; // two stops cannot share one position
    QConicalGradient shade(QPointF(0, 0), gradientStart);
    const double lastFilled = 1 - fraction;
    shade.setColorAt(0, fraction < 1 ? start : end);
    if (fraction < 1) {
        shade.setColorAt(lastFilled / 2, start);
        shade.setColorAt(std::min(lastFilled / 2 + hairsbreadth, lastFilled), end);
        shade.setColorAt(lastFilled, end);
    }
    shade.setColorAt(1, start);
    return shade;
}

QLinearGradient gaugeShade(const QGradientStops& stops, double diameter) {
    QLinearGradient shade(-diameter / 2, 0, diameter / 2, 0);
    shade.setStops(stops);
    return shade;
}

QConicalGradient pieShade(const QColor& start, const QColor& end) {
    QConicalGradient shade(QPointF(0, 0), threeOClock);
    shade.setColorAt(0, end);
    shade.setColorAt(1, start);
    return shade;
}

} // namespace orvelle
