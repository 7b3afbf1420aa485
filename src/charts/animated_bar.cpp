#include "charts/animated_bar.h"

#include "charts/bar_rules.h"
#include "charts/canvas.h"
#include "charts/glow.h"

#include <QLinearGradient>

namespace orvelle {
namespace {

constexpr double topOpacity = 0.9;
constexpr double bottomOpacity = 0.6;
/// The glow sits one point higher than the bar.
constexpr double glowRise = 1;

QBrush barBrush(BarChartStyle style, const QColor& color, double top, double bottom) {
    if (style == BarChartStyle::thinLine)
        return color;
    QLinearGradient fade(0, top, 0, bottom);
    fade.setColorAt(0, withOpacity(color, topOpacity));
    fade.setColorAt(1, withOpacity(color, bottomOpacity));
    return fade;
}

} // namespace

BarLook AnimatedBar::look() const {
    const double ratio = barFillRatio(value, maxValue);
    return {ratio, barColor(ratio, baseColor)};
}

void AnimatedBar::paint(QPainter& painter, const QRectF& slot, GlowCache* glows) const {
    paint(painter, slot, look(), glows);
}

void AnimatedBar::paint(QPainter& painter, const QRectF& slot, const BarLook& shown, GlowCache* glows,
                        std::size_t index) const {
    if (!isPaintable(slot.size()))
        return;
    const QRectF localSlot({0, 0}, slot.size());
    const double height = barHeight(shown.ratio, slot.height());
    const QPainterPath shape = barShape(barStyle, localSlot, height, cornerRadius);
    const QBrush brush = barBrush(barStyle, shown.color, localSlot.bottom() - height, localSlot.bottom());
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(slot.topLeft());
    if (showGlow) {
        painter.translate(0, -glowRise);
        paintGlow(painter,
                  {.shape = shape,
                   .brush = brush,
                   .color = withOpacity(shown.color, glowOpacity(glowIntensity)),
                   .radius = barGlowRadius(barStyle, glowIntensity)},
                  glows, index);
        painter.translate(0, glowRise);
    }
    painter.fillPath(shape, brush);
    painter.restore();
}

} // namespace orvelle
