#include "charts/animated_bar.h"

#include "charts/bar_rules.h"
#include "charts/canvas.h"
#include "charts/glow.h"
#include "theme/opacity.h"

#include <QLinearGradient>

#include <algorithm>

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

/// Draws the bar in a slot whose top-left corner is the origin.
void drawBar(QPainter& painter, const AnimatedBar& bar, const QSizeF& slotSize, const BarLook& shown) {
    const QRectF slot({0, 0}, slotSize);
    const double height = barHeight(shown.ratio, slot.height());
    const QPainterPath shape = barShape(bar.barStyle, slot, height, bar.cornerRadius);
    const QBrush brush = barBrush(bar.barStyle, shown.color, slot.bottom() - height, slot.bottom());
    if (bar.showGlow) {
        GlowStyle style = GlowStyle::of(shown.color, bar.glowIntensity);
        style.radius = barGlowRadius(bar.barStyle, bar.glowIntensity);
        paintGlow(painter, shape.boundingRect().translated(0, -glowRise), style, [&](QPainter& mask) {
            mask.translate(0, -glowRise);
            mask.fillPath(shape, brush);
        });
    }
    painter.fillPath(shape, brush);
}

} // namespace

BarLook AnimatedBar::look() const {
    const double ratio = barFillRatio(value, maxValue);
    return {ratio, barColor(ratio, baseColor)};
}

double AnimatedBar::overhang() const {
    return showGlow ? glowReach(barGlowRadius(barStyle, glowIntensity)) + glowRise : 0;
}

void AnimatedBar::paint(QPainter& painter, const QRectF& slot, const BarLook& shown,
                        PictureCache<BarPicture>* cache, std::size_t index) const {
    if (!isPaintable(slot.size()))
        return;
    const double width = barWidth(barStyle, slot.width());
    const double height = std::max(barHeight(shown.ratio, slot.height()), slot.height());
    const QRectF inked(slot.width() / 2 - width / 2, slot.height() - height, width, height);
    const double room = overhang();
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(slot.topLeft());
    const auto draw = [&](QPainter& target) { drawBar(target, *this, slot.size(), shown); };
    showKept(painter, cache, BarPicture{*this, shown}, inked.adjusted(-room, -room, room, room), draw, index);
    painter.restore();
}

} // namespace orvelle
