#include "charts/temperature_gauge.h"

#include "animation/transition.h"
#include "charts/canvas.h"
#include "charts/glow.h"
#include "charts/ring_geometry.h"
#include "theme/colors.h"
#include "theme/fonts.h"

#include <fmt/format.h>

#include <cmath>

namespace orvelle {
namespace {

constexpr double dialSize = TemperatureGauge::dialSize;
constexpr double strokeWidth = 6;
constexpr double trackOpacity = 0.08;
constexpr double captionSpacing = 6;

QFont readingFont() {
    return roundedSystemFont(14, QFont::Bold);
}
QFont captionFont() {
    return systemFont(10, QFont::DemiBold);
}

QGradientStops temperatureStops() {
    return {{0, SystemColors::green},
            {1.0 / 3, SystemColors::yellow},
            {2.0 / 3, SystemColors::orange},
            {1, SystemColors::red}};
}

QPen dialPen(const QBrush& brush) {
    return {brush, strokeWidth, Qt::SolidLine, Qt::RoundCap, Qt::SvgMiterJoin};
}

QRectF dialSquare() {
    return {-dialSize / 2, -dialSize / 2, dialSize, dialSize};
}

QRectF inkedDial() {
    constexpr double stroke = strokeWidth / 2;
    return dialSquare().adjusted(-stroke, -stroke, stroke, stroke);
}

QPainterPath dialArc(const Trim& trim) {
    return trimmedCircle(dialSquare(), trim, ringRotation(RingChartStyle::halfGauge));
}

/// Draws track, glow and progress around the origin.
void drawDial(QPainter& painter, const TemperatureDial& dial) {
    const QPainterPath progress = dialArc(ringProgress(RingChartStyle::halfGauge, dial.look.fraction));
    const QPen pen = dialPen(gaugeGradient(temperatureStops(), dialSize));
    painter.strokePath(dialArc(ringTrack(RingChartStyle::halfGauge)),
                       dialPen(withOpacity(SystemColors::white, trackOpacity)));
    if (!progress.isEmpty())
        paintGlow(painter, inkedDial(), GlowStyle::of(dial.look.glowColor, dial.glowIntensity),
                  [&](QPainter& mask) { mask.strokePath(progress, pen); });
    painter.strokePath(progress, pen);
}

} // namespace

double temperatureFraction(double temperature, double maxTemp) {
    return maxTemp > 0 ? clampedFraction(temperature / maxTemp) : 0;
}

QColor temperatureBandColor(double temperature) {
    if (temperature < 50)
        return SystemColors::green;
    if (temperature < 70)
        return SystemColors::yellow;
    if (temperature < 90)
        return SystemColors::orange;
    return SystemColors::red;
}

bool isTemperatureKnown(double temperature) {
    return std::isfinite(temperature) && temperature > 0;
}

QString temperatureReading(double temperature, bool useFahrenheit) {
    if (!isTemperatureKnown(temperature))
        return QStringLiteral("--°");
    const double shown = useFahrenheit ? temperature * 9 / 5 + 32 : temperature;
    return QString::fromStdString(fmt::format("{:.0f}", shown)) +
           (useFahrenheit ? QStringLiteral("°F") : QStringLiteral("°C"));
}

DialLook interpolate(const DialLook& from, const DialLook& to, double progress) {
    return {interpolate(from.fraction, to.fraction, progress),
            interpolate(from.glowColor, to.glowColor, progress)};
}

DialLook TemperatureGauge::look() const {
    return {temperatureFraction(temperature, maxTemp), temperatureBandColor(temperature)};
}

double TemperatureGauge::height() const {
    return dialSize + captionSpacing + lineHeight(captionFont());
}

double TemperatureGauge::overhang() const {
    return strokeWidth / 2 + (showGlow ? glowReach(glowRadius(glowIntensity)) : 0);
}

void TemperatureGauge::paint(QPainter& painter, const QRectF& bounds) const {
    paint(painter, bounds, look(), nullptr);
}

void TemperatureGauge::paint(QPainter& painter, const QRectF& bounds, const DialLook& shown,
                             PictureCache<TemperatureDial>* cache) const {
    if (!isPaintable(bounds.size()))
        return;
    const TemperatureDial dial{.look = shown,
                               .glowIntensity = showGlow ? glowIntensity : GlowIntensity::none};
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(bounds.center().x(), bounds.top() + dialSize / 2);
    showKept(painter, cache, dial, withGlowRoom(inkedDial(), glowRadius(dial.glowIntensity)),
             [&](QPainter& target) { drawDial(target, dial); });
    drawLabel(painter, dialSquare(), temperatureReading(temperature, useFahrenheit), readingFont(),
              isTemperatureKnown(temperature) ? LabelColors::primary : LabelColors::secondary);
    const QFont font = captionFont();
    drawLabel(painter, {-bounds.width() / 2, dialSize / 2 + captionSpacing, bounds.width(), lineHeight(font)},
              label, font, LabelColors::secondary);
    painter.restore();
}

} // namespace orvelle
