#include "charts/gradient_bar.h"

#include "charts/canvas.h"
#include "charts/continuous_rounded_rect.h"
#include "look/opacity.h"

#include <QLinearGradient>

#include <algorithm>

namespace orvelle {
namespace {

constexpr double gradientBarRadius = 2;
constexpr double opacityAtStart = 0.7;

} // namespace

void GradientBar::paint(QPainter& painter, const QRectF& bounds, double shownFraction) const {
    if (!isPaintable(bounds.size()))
        return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(continuousRoundedRect(bounds, gradientBarRadius), trackColor);
    // A spring overshoots both ends; what is no number fills nothing.
    const double filled = shownFraction > 0 ? std::min(shownFraction, 1.0) : 0;
    const QRectF fill(bounds.topLeft(), QSizeF(bounds.width() * filled, bounds.height()));
    QLinearGradient gradient(fill.topLeft(), fill.topRight());
    gradient.setColorAt(0, withOpacity(color, opacityAtStart));
    gradient.setColorAt(1, color);
    painter.fillPath(continuousRoundedRect(fill, gradientBarRadius), gradient);
    painter.restore();
}

} // namespace orvelle
