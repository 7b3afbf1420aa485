#include "charts/animated_bar_chart.h"
#include "charts/animated_line_graph.h"
#include "charts/ring_charts.h"
#include "paint_cost.h"
#include "theme/colors.h"

#include <QImage>

#include <cmath>
#include <cstdio>

namespace orvelle::bench {
namespace {

/// `Cache` is the kind of cache that `paint` takes.
template <typename Cache, typename Paint>
void measure(const char* name, double pixelsPerPoint, const Paint& paint) {
    QImage image(QSize(400, 200) * pixelsPerPoint, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(pixelsPerPoint);
    image.fill(Qt::black);
    QPainter painter(&image);
    Cache kept;
    const double changed = leastMilliseconds([&] { paint(painter, static_cast<Cache*>(nullptr)); });
    const double repainted = leastMilliseconds([&] { paint(painter, &kept); });
    std::printf("| %s, %gx | %.3f | %.3f |\n", name, pixelsPerPoint, changed, repainted);
}

QList<double> samples(int count) {
    QList<double> result;
    for (int index = 0; index < count; ++index)
        result.append(0.5 + 0.3 * std::sin(index * 0.4) + 0.15 * std::sin(index * 1.7));
    return result;
}

void measureLineGraph(const char* name, double pixelsPerPoint, GlowIntensity intensity) {
    const AnimatedLineGraph graph{.data = samples(60),
                                  .lineColor = SystemColors::cyan,
                                  .height = 60,
                                  .glowIntensity = intensity,
                                  .gridColor = QColor(255, 255, 255, 15)};
    measure<PictureCache<AnimatedLineGraph>>(name, pixelsPerPoint, [&](QPainter& painter, auto* cache) {
        graph.paint(painter, {40, 40, 320, 60}, cache);
    });
}

void measureRing(const char* name, double pixelsPerPoint, RingChartStyle style) {
    const AnimatedRingChart ring{.value = 0.7,
                                 .size = 90,
                                 .baseColor = SystemColors::green,
                                 .trackColor = QColor(255, 255, 255, 20),
                                 .ringStyle = style,
                                 .glowIntensity = GlowIntensity::intense,
                                 .animatedValue = 0.7};
    measure<PictureCache<AnimatedRingChart>>(name, pixelsPerPoint, [&](QPainter& painter, auto* cache) {
        ring.paint(painter, {40, 40, 90, 90}, cache);
    });
}

void measureBars(const char* name, double pixelsPerPoint, int count) {
    const AnimatedBarChart bars{.values = samples(count),
                                .baseColor = SystemColors::blue,
                                .height = 50,
                                .glowIntensity = GlowIntensity::intense};
    measure<PictureCache<BarPicture>>(name, pixelsPerPoint, [&](QPainter& painter, auto* cache) {
        bars.paint(painter, {40, 40, 288, 50}, cache);
    });
}

void measureAll(double pixelsPerPoint) {
    measureLineGraph("line graph, no glow", pixelsPerPoint, GlowIntensity::none);
    measureLineGraph("line graph, medium glow", pixelsPerPoint, GlowIntensity::medium);
    measureLineGraph("line graph, intense glow", pixelsPerPoint, GlowIntensity::intense);
    measureRing("full ring, intense glow", pixelsPerPoint, RingChartStyle::fullRing);
    measureRing("pie, intense glow", pixelsPerPoint, RingChartStyle::pieChart);
    measureBars("16 bars, intense glow", pixelsPerPoint, 16);
    measureBars("64 bars, intense glow", pixelsPerPoint, 64);
}

} // namespace

void printChartCosts() {
    std::puts("| chart, milliseconds | with changed data | repainted |\n| --- | --- | --- |");
    for (const double pixelsPerPoint : {1.0, 2.0})
        measureAll(pixelsPerPoint);
}

} // namespace orvelle::bench
