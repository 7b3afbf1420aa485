#include "charts/animated_bar_chart.h"
#include "charts/animated_line_graph.h"
#include "charts/animated_ring_chart.h"
#include "settings/system_colors.h"

#include <QGuiApplication>
#include <QImage>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <ctime>
#include <functional>
#include <limits>

/// Prints how much processor time it takes to paint the charts: once with changed data, once only repainted.
/// Start it with QT_QPA_PLATFORM=offscreen from a release build.
namespace orvelle {
namespace {

double processorMilliseconds() {
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

/// The least time of many: whatever else the machine does only ever adds to it.
double leastMilliseconds(const std::function<void()>& paint) {
    constexpr int rounds = 60;
    constexpr int paintsPerRound = 5;
    double least = std::numeric_limits<double>::infinity();
    for (int round = 0; round < rounds; ++round) {
        const double start = processorMilliseconds();
        for (int count = 0; count < paintsPerRound; ++count)
            paint();
        least = std::min(least, (processorMilliseconds() - start) / paintsPerRound);
    }
    return least;
}

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
    std::printf("%-28s %gx   changed %6.3f ms   repainted %6.3f ms\n", name, pixelsPerPoint, changed,
                repainted);
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
} // namespace orvelle

int main(int argumentCount, char** arguments) {
    const QGuiApplication application(argumentCount, arguments);
    orvelle::measureAll(1);
    orvelle::measureAll(2);
}
