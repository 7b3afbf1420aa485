#include "windows/settings/preview_geometry.h"

#include "charts/canvas.h"
#include "charts/continuous_rounded_rect.h"
#include "charts/line_geometry.h"
#include "charts/ring_geometry.h"
#include "charts/sparkline_view.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace orvelle {
namespace {

constexpr double lineWidth = 1.5;
constexpr double dashLength = 2;
constexpr double gapLength = 3;
constexpr double miterLimit = 10;

constexpr std::array barSamples{0.4, 0.7, 0.5, 0.9, 0.3};
constexpr double fullBarHeight = 20;
constexpr double barGap = 2;

constexpr std::array cardSamples{0.55, 0.8, 0.45, 0.95, 0.65, 0.35};
constexpr int cardDotCount = 5;
constexpr double cardDotSide = 6;
constexpr double cardDotGap = 4;
constexpr double cardBarGap = 3;
constexpr double cardInset = 4;

} // namespace

QPainterPath previewLine(GraphLineStyle style, const QSizeF& canvas) {
    static const QList<double> samples{0.3, 0.6, 0.4, 0.8, 0.5, 0.7, 0.3};
    const QList<QPointF> points = samplePoints(samples, 1, canvas);
    return style == GraphLineStyle::smooth ? sparklinePath(points) : linePath(points, style);
}

QPen previewLinePen(GraphLineStyle style, const QColor& color) {
    QPen pen(color, lineWidth, Qt::SolidLine, Qt::RoundCap, Qt::SvgMiterJoin);
    pen.setMiterLimit(miterLimit);
    if (style == GraphLineStyle::dotted)
        pen.setDashPattern({dashLength / lineWidth, gapLength / lineWidth}); // in units of the pen's width
    return pen;
}

QList<QRectF> previewBars(BarChartStyle style, const QSizeF& frame) {
    const double barWidth = style == BarChartStyle::thinLine ? 2 : 6;
    const double count = barSamples.size();
    double x = (frame.width() - count * barWidth - (count - 1) * barGap) / 2;
    QList<QRectF> bars;
    for (const double sample : barSamples) {
        const double height = sample * fullBarHeight;
        bars.append({x, frame.height() - height, barWidth, height});
        x += barWidth + barGap;
    }
    return bars;
}

QPainterPath previewBarShape(BarChartStyle style, const QRectF& bar) {
    switch (style) {
    case BarChartStyle::rounded:
        return continuousRoundedRect(bar, 2);
    case BarChartStyle::square:
        return continuousRoundedRect(bar, 0);
    case BarChartStyle::pill:
        return continuousCapsule(bar);
    case BarChartStyle::thinLine:
        return continuousRoundedRect(bar, 0.5);
    }
    return {};
}

PreviewRing previewRing(RingChartStyle style, const QSizeF& frame) {
    const auto inMiddle = [&](double side) { return centred({side, side}, QRectF({0, 0}, frame)); };
    if (style == RingChartStyle::pieChart) {
        const QRectF disc = inMiddle(previewRingSide);
        QPainterPath track;
        track.addEllipse(disc);
        const PieSlice wedge{.startAngle = -90, .endAngle = previewRingFraction * 360 - 90};
        return {track, wedge.path(disc), true};
    }
    const QRectF circle = inMiddle(previewRingSide - previewRingStroke);
    const double rotation = ringRotation(style);
    const QPainterPath track = trimmedCircle(circle, ringTrack(style), rotation);
    // The stroke and its round caps extend the path equally on all sides.
    const double drop = frame.height() / 2 - track.boundingRect().center().y();
    return {track.translated(0, drop),
            trimmedCircle(circle, ringProgress(style, previewRingFraction), rotation).translated(0, drop),
            false};
}

ThemeCardLayout themeCardLayout(const QRectF& content) {
    const QRectF area = content.adjusted(cardInset, cardInset, -cardInset, -cardInset);
    ThemeCardLayout layout;
    const double dotTop = area.bottom() - cardDotSide;
    const double dotsWidth = cardDotCount * cardDotSide + (cardDotCount - 1) * cardDotGap;
    for (int index = 0; index < cardDotCount; ++index)
        layout.dots.append({area.center().x() - dotsWidth / 2 + index * (cardDotSide + cardDotGap), dotTop,
                            cardDotSide, cardDotSide});
    const double floor = dotTop - cardInset;
    const double count = cardSamples.size();
    const double width = std::max(1.0, std::floor((area.width() - (count - 1) * cardBarGap) / count));
    double x = area.center().x() - (count * width + (count - 1) * cardBarGap) / 2;
    for (const double sample : cardSamples) {
        const double height = sample * (floor - area.top());
        layout.bars.append({x, floor - height, width, height});
        x += width + cardBarGap;
    }
    return layout;
}

} // namespace orvelle
