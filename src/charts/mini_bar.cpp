#include "charts/mini_bar.h"

#include "charts/bar_rules.h"
#include "charts/continuous_rounded_rect.h"

namespace orvelle {
namespace {

constexpr double cornerRadius = 0.5;

} // namespace

void MiniBar::paint(QPainter& painter, const QRectF& slot) const {
    const double height = miniBarHeight(value, slot.height());
    // A slot lower than the smallest bar shows what fits.
    const QRectF bar = QRectF(slot.left(), slot.bottom() - height, slot.width(), height) & slot;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(continuousRoundedRect(bar, cornerRadius), miniBarColor(value, color));
    painter.restore();
}

} // namespace orvelle
