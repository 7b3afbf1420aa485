#include "menu_bar/battery_glyph.h"

#include "theme/device_pixels.h"

#include <algorithm>
#include <cmath>

namespace orvelle {
namespace {

constexpr QSizeF bodySize(20, 10);
constexpr QSizeF terminalSize(2, 5);
constexpr double terminalGap = 1;
constexpr double bodyCornerRadius = 2.5;
constexpr double fillInset = 1;
constexpr double fillCornerRadius = 1.5;
constexpr double outlineWidth = 1;
/// Space on the left for the half of the outline that lies outside the body. A whole point keeps the body on
/// whole pixels.
constexpr double leadingMargin = 1;

/// Draws an outline of one point along the edge of the body. If its width is an odd number of device pixels,
/// the line moves inwards by half a pixel; otherwise it would blur over two.
void paintOutline(QPainter& painter, const QRectF& body, const QColor& color) {
    const double pixelsPerPoint = devicePixelsPerPoint(painter);
    const double linePixels = std::max(1.0, std::round(outlineWidth * pixelsPerPoint));
    const double inset = std::fmod(linePixels, 2) == 0 ? 0 : 0.5 / pixelsPerPoint;
    painter.setPen(QPen(color, linePixels / pixelsPerPoint));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(body.adjusted(inset, inset, -inset, -inset), bodyCornerRadius, bodyCornerRadius);
}

void paintFill(QPainter& painter, const QRectF& body, double charge, const QColor& color) {
    const QPointF topLeft = body.topLeft() + QPointF(fillInset, fillInset);
    const QRectF fill(topLeft, QSizeF(batteryFillWidth(charge), body.height() - 2 * fillInset));
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawRoundedRect(fill, fillCornerRadius, fillCornerRadius);
}

void paintTerminal(QPainter& painter, const QRectF& body, const QColor& color) {
    const QRectF terminal({body.right() + terminalGap, body.center().y() - terminalSize.height() / 2},
                          terminalSize);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawRoundedRect(terminal, 1, 1);
}

} // namespace

double batteryFillWidth(double charge) {
    constexpr double fullWidth = 18;
    return fullWidth * charge;
}

QSizeF batteryGlyphSize() {
    return {leadingMargin + bodySize.width() + terminalGap + terminalSize.width(), bodySize.height()};
}

void paintShape(QPainter& painter, const QRectF& frame, const BatteryShape& battery,
                BarAppearance appearance) {
    const QColor outline = colorOnBar(primaryLabel, appearance);
    const QRectF body(frame.topLeft() + QPointF(leadingMargin, 0), bodySize);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    paintFill(painter, body, battery.charge, battery.color);
    paintOutline(painter, body, outline);
    paintTerminal(painter, body, outline);
    painter.restore();
}

} // namespace orvelle
