#include "charts/plain_bars.h"

#include "charts/canvas.h"
#include "charts/continuous_rounded_rect.h"
#include "theme/colors.h"

#include <QLinearGradient>

#include <algorithm>

namespace orvelle {
namespace {

constexpr double miniBarRadius = 0.5;
constexpr double gradientBarRadius = 2;
constexpr double opacityAtStart = 0.7;

} // namespace

BarLook MiniBar::look() const {
    return {std::min(value, 1.0), miniBarColor(value, color)};
}

void MiniBar::paint(QPainter& painter, const QRectF& slot) const {
    paint(painter, slot, look());
}

void MiniBar::paint(QPainter& painter, const QRectF& slot, const BarLook& shown) {
    const double height = barHeight(shown.ratio, slot.height());
    // A slot lower than the smallest bar shows what fits.
    const QRectF bar = QRectF(slot.left(), slot.bottom() - height, slot.width(), height) & slot;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(continuousRoundedRect(bar, miniBarRadius), shown.color);
    painter.restore();
}

void GradientBar::paint(QPainter& painter, const QRectF& bounds, double shownFraction) const {
    if (!isPaintable(bounds.size()))
        return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(continuousRoundedRect(bounds, gradientBarRadius), trackColor);
    const double filled = shownFraction > 0 ? shownFraction : 0; // also for what is not a number
    const QRectF fill(bounds.topLeft(), QSizeF(bounds.width() * filled, bounds.height()));
    QLinearGradient gradient(fill.topLeft(), fill.topRight());
    gradient.setColorAt(0, withOpacity(color, opacityAtStart));
    gradient.setColorAt(1, color);
    painter.fillPath(continuousRoundedRect(fill, gradientBarRadius), gradient);
    painter.restore();
}

} // namespace orvelle
