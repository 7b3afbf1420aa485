#include "charts/gradient_bar.h"

#include "charts/canvas.h"
#include "charts/continuous_rounded_rect.h"
#include "theme/opacity.h"

#include <QLinearGradient>

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
    const double filled = shownFraction > 0 ? shownFraction : 0; // what is no number fills nothing
    const QRectF fill(bounds.topLeft(), QSizeF(bounds.width() * filled, bounds.height()));
    QLinearGradient gradient(fill.topLeft(), fill.topRight());
    gradient.setColorAt(0, withOpacity(color, opacityAtStart));
    gradient.setColorAt(1, color);
    painter.fillPath(continuousRoundedRect(fill, gradientBarRadius), gradient);
    painter.restore();
}

} // namespace orvelle
