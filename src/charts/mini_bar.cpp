#include "charts/mini_bar.h"

#include "charts/bar_rules.h"
#include "charts/continuous_rounded_rect.h"

#include <algorithm>

namespace orvelle {
namespace {

constexpr double miniBarRadius = 0.5;

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

} // namespace orvelle
