#include "charts/temperature_gauge.h"

#include "charts/canvas.h"
#include "charts/glow.h"
#include "charts/label_text.h"
#include "charts/ring_rules.h"
#include "charts/temperature_rules.h"
#include "look/fonts.h"
#include "look/label_colors.h"
#include "settings/system_colors.h"

#include <QLinearGradient>

namespace orvelle {
namespace {

constexpr double dialSize = 70;
constexpr double strokeWidth = 6;
constexpr double trackOpacity = 0.08;
constexpr double captionSpacing = 6;

QFont readingFont() {
    return roundedSystemFont(14, QFont::Bold);
}
QFont captionFont() {
    return systemFont(10, QFont::DemiBold);
}

QPen dialPen(const QBrush& brush) {
    return {brush, strokeWidth, Qt::SolidLine, Qt::RoundCap, Qt::SvgMiterJoin};
}

/// From green to red, leading to trailing before the dial is turned, so from top to bottom.
QLinearGradient temperatureShade(const QRectF& dial) {
    QLinearGradient shade(dial.topLeft(), dial.bottomLeft());
    shade.setColorAt(0, SystemColors::green);
    shade.setColorAt(1.0 / 3, SystemColors::yellow);
    shade.setColorAt(2.0 / 3, SystemColors::orange);
    shade.setColorAt(1, SystemColors::red);
    return shade;
}

void paintDial(QPainter& painter, const TemperatureGauge& gauge, double shownFraction, GlowCache* glows) {
    const QRectF dial(-dialSize / 2, -dialSize / 2, dialSize, dialSize);
    const double rotation = ringRotation(RingChartStyle::halfGauge);
    const auto arc = [&](const Trim& trim) { return trimmedCircle(dial, trim, rotation); };
    const QPainterPath progress = arc(ringProgress(RingChartStyle::halfGauge, shownFraction));
    const QPen pen = dialPen(temperatureShade(dial));
    painter.strokePath(arc(ringTrack(RingChartStyle::halfGauge)),
                       dialPen(withOpacity(SystemColors::white, trackOpacity)));
    if (gauge.showGlow) {
        const QColor band = temperatureBandColor(gauge.temperature);
        paintGlow(painter,
                  {.shape = progress,
                   .pen = pen,
                   .color = withOpacity(band, glowOpacity(gauge.glowIntensity)),
                   .radius = glowRadius(gauge.glowIntensity)},
                  glows);
    }
    painter.strokePath(progress, pen);
    drawLabel(painter, dial, temperatureReading(gauge.temperature, gauge.useFahrenheit), readingFont(),
              isTemperatureKnown(gauge.temperature) ? LabelColors::primary : LabelColors::secondary);
}

} // namespace

double TemperatureGauge::fraction() const {
    return temperatureFraction(temperature, maxTemp);
}

double TemperatureGauge::height() const {
    return dialSize + captionSpacing + lineHeight(captionFont());
}

void TemperatureGauge::paint(QPainter& painter, const QRectF& bounds, GlowCache* glows) const {
    paint(painter, bounds, fraction(), glows);
}

void TemperatureGauge::paint(QPainter& painter, const QRectF& bounds, double shownFraction,
                             GlowCache* glows) const {
    if (!isPaintable(bounds.size()))
        return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(bounds.center().x(), bounds.top() + dialSize / 2);
    paintDial(painter, *this, shownFraction, glows);
    const QFont font = captionFont();
    drawLabel(painter, {-bounds.width() / 2, dialSize / 2 + captionSpacing, bounds.width(), lineHeight(font)},
              label, font, LabelColors::secondary);
    painter.restore();
}

} // namespace orvelle
