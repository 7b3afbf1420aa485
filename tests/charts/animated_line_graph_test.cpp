#include "at_scale.h"
#include "charts/animated_line_graph.h"
#include "support/odd_numbers.h"

#include <cmath>

namespace orvelle {
namespace {

TEST(LineGraphScale, IsNeverBelowAThousandth) {
    EXPECT_EQ(lineGraphScale(110), 110);
    EXPECT_EQ(lineGraphScale(0), 0.001);
    EXPECT_EQ(lineGraphScale(-5), 0.001);
    EXPECT_EQ(lineGraphScale(notANumber), 0.001);
}

TEST(LineDashes, BreakOnlyTheDottedLine) {
    EXPECT_EQ(lineDashes(GraphLineStyle::dotted), (DashPattern{3, 4}));
    EXPECT_EQ(lineDashes(GraphLineStyle::smooth), std::nullopt);
    EXPECT_EQ(lineDashes(GraphLineStyle::sharp), std::nullopt);
    EXPECT_EQ(lineDashes(GraphLineStyle::stepped), std::nullopt);
}

TEST(GridLines, LieAtTheQuarters) {
    EXPECT_EQ(gridLineHeights(60), (std::array<double, 3>{15, 30, 45}));
}

class LineGraph : public AtScale {
protected:
    static AnimatedLineGraph bare(const QList<double>& data) {
        return {.data = data,
                .maxValue = 1,
                .lineColor = Qt::cyan,
                .fillGradient = false,
                .showGlow = false,
                .height = 40,
                .lineWidth = 2,
                .lineStyle = GraphLineStyle::sharp,
                .fillStyle = GraphFillStyle::solid,
                .glowIntensity = GlowIntensity::intense,
                .gridColor = Qt::transparent};
    }

    [[nodiscard]] QImage paintedGraph(const AnimatedLineGraph& graph, const QSizeF& size = {60, 40}) const {
        return painted(size, [&](QPainter& painter) { graph.paint(painter, {{0, 0}, size}); });
    }
};

INSTANTIATE_TEST_SUITE_P(, LineGraph, bothScales);

TEST_P(LineGraph, DrawsNotEvenItsGridForFewerThanTwoSamples) {
    for (const QList<double>& data : {QList<double>{}, QList<double>{0.5}}) {
        AnimatedLineGraph graph = bare(data);
        graph.gridColor = Qt::white;
        graph.fillGradient = true;
        graph.showGlow = true;
        EXPECT_TRUE(paintedRect(paintedGraph(graph)).isEmpty());
    }
}

TEST_P(LineGraph, DrawsALevelLineAtItsHeight) {
    const QImage image = paintedGraph(bare({0.25, 0.25}));
    EXPECT_EQ(paintedRect(image), QRect(0, pixels(29), pixels(60), pixels(2)));
    EXPECT_EQ(colorAt(image, 30, 30), QColor(Qt::cyan));
}

TEST_P(LineGraph, DrawsTwoSamplesAsOneStraightLineUnlessStepped) {
    AnimatedLineGraph graph = bare({0.1, 0.9});
    const QImage sharp = paintedGraph(graph);
    EXPECT_GT(colorAt(sharp, 30, 20).alpha(), 200);
    graph.lineStyle = GraphLineStyle::smooth;
    EXPECT_EQ(paintedGraph(graph), sharp);
    graph.lineStyle = GraphLineStyle::stepped;
    const QImage stepped = paintedGraph(graph);
    EXPECT_EQ(colorAt(stepped, 30, 36), QColor(Qt::cyan)) << "across at the old value";
    EXPECT_EQ(colorAt(stepped, 59.5, 20), QColor(Qt::cyan)) << "then up at the new sample";
    EXPECT_EQ(colorAt(stepped, 30, 20).alpha(), 0);
}

TEST_P(LineGraph, DrawsEveryPositiveSampleAtTheTopWithoutAMaximum) {
    AnimatedLineGraph graph = bare({0.002, 5, 70});
    graph.maxValue = 0;
    EXPECT_EQ(paintedRect(paintedGraph(graph)), QRect(0, 0, pixels(60), pixels(1))) << "the lower half of it";
}

TEST_P(LineGraph, DrawsSamplesAboveTheMaximumAtTheTop) {
    EXPECT_EQ(paintedGraph(bare({9, 0.5, infinity})), paintedGraph(bare({1, 0.5, 1})));
}

TEST_P(LineGraph, ClipsNegativeSamplesToItsCanvas) {
    const AnimatedLineGraph graph = bare({1, -1, 1});
    const auto paint = [&](QPainter& painter) { graph.paint(painter, {10, 10, 60, 40}); };
    const QImage image = painted({80, 80}, paint);
    EXPECT_TRUE(QRect(pixels(10), pixels(10), pixels(60), pixels(40)).contains(paintedRect(image)));
    EXPECT_GT(colorAt(image, 25, 49.5).alpha(), 0) << "halfway down to -1 it leaves the canvas";
    EXPECT_EQ(colorAt(image, 40, 49.5).alpha(), 0) << "the sample itself is out of sight";
}

TEST_P(LineGraph, FillsOnlyWhenSwitchAndStyleAllowIt) {
    AnimatedLineGraph graph = bare({0.5, 0.5});
    const QImage lineOnly = paintedGraph(graph);
    graph.fillGradient = true;
    graph.fillStyle = GraphFillStyle::none;
    EXPECT_EQ(paintedGraph(graph), lineOnly);
    for (const auto style : {GraphFillStyle::gradient, GraphFillStyle::solid, GraphFillStyle::striped}) {
        graph.fillStyle = style;
        EXPECT_NE(paintedGraph(graph), lineOnly);
        graph.fillGradient = false;
        EXPECT_EQ(paintedGraph(graph), lineOnly);
        graph.fillGradient = true;
    }
}

TEST_P(LineGraph, FillsTheAreaUnderTheLine) {
    AnimatedLineGraph graph = bare({0.5, 0.5});
    graph.fillGradient = true;
    const QImage solid = paintedGraph(graph);
    EXPECT_NEAR(colorAt(solid, 30, 35).alphaF(), 0.2, 0.01);
    EXPECT_EQ(colorAt(solid, 30, 10).alpha(), 0);

    graph.data = {1, 1};
    graph.fillStyle = GraphFillStyle::gradient;
    const QImage gradient = paintedGraph(graph);
    EXPECT_NEAR(colorAt(gradient, 30, 3).alphaF(), 0.3 - 0.25 * 3 / 40, 0.02);
    EXPECT_NEAR(colorAt(gradient, 30, 39.5).alphaF(), 0.05, 0.01);
}

TEST_P(LineGraph, StripesTheWholeCanvas) {
    AnimatedLineGraph graph = bare({0, 0});
    graph.fillGradient = true;
    graph.fillStyle = GraphFillStyle::striped;
    const QImage image = paintedGraph(graph);
    for (const double y : {0.0, 4.0, 8.0, 32.0})
        EXPECT_GT(colorAt(image, 30, y).alpha(), 0) << y;
    EXPECT_EQ(colorAt(image, 30, 2).alpha(), 0) << "between two stripes, above the area";
    EXPECT_GT(colorAt(image, 0.5, 4).alpha(), 0);
    EXPECT_GT(colorAt(image, 59.5, 4).alpha(), 0);

    graph.data = {1, 1};
    EXPECT_NEAR(colorAt(paintedGraph(graph), 30, 6).alphaF(), 0.08, 0.01) << "the area between two stripes";
}

TEST_P(LineGraph, GlowsOnlyWhenSwitchAndIntensityAllowIt) {
    AnimatedLineGraph graph = bare({0.5, 0.5});
    const QImage plain = paintedGraph(graph);
    graph.showGlow = true;
    graph.glowIntensity = GlowIntensity::none;
    EXPECT_EQ(paintedGraph(graph), plain);
    int previous = 0;
    for (const auto intensity : {GlowIntensity::subtle, GlowIntensity::medium, GlowIntensity::intense}) {
        graph.glowIntensity = intensity;
        const int halo = colorAt(paintedGraph(graph), 30, 17.5).alpha();
        EXPECT_GT(halo, previous);
        previous = halo;
    }
}

TEST_P(LineGraph, GlowFadesAwayFromTheLineAndEndsAtTheCanvas) {
    AnimatedLineGraph graph = bare({0.9, 0.9});
    graph.showGlow = true;
    const auto paint = [&](QPainter& painter) { graph.paint(painter, {10, 10, 60, 40}); };
    const QImage image = painted({80, 60}, paint);
    EXPECT_TRUE(QRect(pixels(10), pixels(10), pixels(60), pixels(40)).contains(paintedRect(image)));
    int previous = 255;
    for (double y = 16; y < 28; y += 2) {
        const int alpha = colorAt(image, 40, y).alpha();
        EXPECT_LT(alpha, previous);
        previous = alpha;
    }
    EXPECT_EQ(colorAt(image, 40, 40).alpha(), 0);
}

TEST_P(LineGraph, BreaksTheDottedLine) {
    AnimatedLineGraph graph = bare({0.5, 0.5});
    graph.lineStyle = GraphLineStyle::dotted;
    const QImage image = paintedGraph(graph, {70, 40});
    for (int period = 0; period < 10; ++period) {
        EXPECT_EQ(colorAt(image, period * 7 + 1.5, 20), QColor(Qt::cyan)) << period;
        EXPECT_EQ(colorAt(image, period * 7 + 5, 20).alpha(), 0)
            << period << ": one point past the round cap";
    }
}

TEST_P(LineGraph, DrawsTheGridOverTheLine) {
    AnimatedLineGraph graph = bare({0.5, 0.5});
    graph.gridColor = Qt::red;
    const QImage image = paintedGraph(graph);
    for (const double y : {10.0, 30.0})
        EXPECT_EQ(colorAt(image, 30, y).red(), 255) << y;
    EXPECT_GT(colorAt(image, 30, 20).red(), 30) << "on top of the line";
    EXPECT_LT(colorAt(image, 30, 20).red(), 255) << "half a point wide";
}

TEST_P(LineGraph, DrawsItsAnimatedSeriesOnceItHasOne) {
    AnimatedLineGraph graph = bare({0.1, 0.1});
    EXPECT_EQ(&graph.series(), &graph.data);
    graph.animatedData = {0.9, 0.9};
    EXPECT_EQ(paintedGraph(graph), paintedGraph(bare({0.9, 0.9})));
}

TEST_P(LineGraph, IsCentredInATallerSpace) {
    EXPECT_EQ(paintedRect(paintedGraph(bare({0.25, 0.25}), {60, 60})).top(), pixels(39));
}

TEST_P(LineGraph, KeepsItsPictureUntilSomethingChanges) {
    AnimatedLineGraph graph = bare({0.2, 0.8, 0.4});
    graph.showGlow = true;
    graph.fillGradient = true;
    PictureCache<AnimatedLineGraph> cache;
    const auto kept = [&](QPainter& painter) { graph.paint(painter, {0, 0, 60, 40}, &cache); };
    EXPECT_LE(largestDifference(painted({60, 40}, kept), paintedGraph(graph)), 2);
    EXPECT_LE(largestDifference(painted({60, 40}, kept), paintedGraph(graph)), 2);
    EXPECT_EQ(cache.drawCount(), 1U);
    graph.data.append(0.6);
    EXPECT_LE(largestDifference(painted({60, 40}, kept), paintedGraph(graph)), 2);
    EXPECT_EQ(cache.drawCount(), 2U);
    graph.lineColor = Qt::red;
    EXPECT_LE(largestDifference(painted({60, 40}, kept), paintedGraph(graph)), 2);
    EXPECT_EQ(cache.drawCount(), 3U);
}

TEST_P(LineGraph, SurvivesAnyInput) {
    const QList<QList<double>> series{{notANumber, notANumber},
                                      {infinity, -infinity, 0.5},
                                      {1e308, -1e308, 1e308},
                                      {-5, -5},
                                      {0.5, notANumber, 0.5}};
    for (const QList<double>& data : series) {
        for (const auto style : {GraphLineStyle::smooth, GraphLineStyle::stepped, GraphLineStyle::dotted}) {
            for (const double number : {notANumber, infinity, -1.0, 0.0, 0.4, 1e300}) {
                AnimatedLineGraph graph = bare(data);
                graph.lineStyle = style;
                graph.showGlow = true;
                graph.fillGradient = true;
                graph.fillStyle = GraphFillStyle::striped;
                graph.maxValue = number;
                (void)paintedGraph(graph);
                graph.lineWidth = number;
                (void)paintedGraph(graph);
                graph.height = number;
                (void)paintedGraph(graph);
            }
        }
    }
}

TEST_P(LineGraph, ShowsTheExtremesOfAHundredThousandSamples) {
    QList<double> data;
    for (int index = 0; index < 100000; ++index)
        data.append(index % 2 == 0 ? 0.25 : 0.75);
    const QImage image = paintedGraph(bare(data), {300, 40});
    EXPECT_EQ(paintedRect(image).left(), 0);
    EXPECT_EQ(paintedRect(image).right(), pixels(300) - 1);
    for (double x = 1; x < 299; x += 7) {
        EXPECT_EQ(colorAt(image, x, 20), QColor(Qt::cyan)) << x;
        EXPECT_EQ(colorAt(image, x, 8).alpha(), 0);
        EXPECT_EQ(colorAt(image, x, 32).alpha(), 0);
    }
}

TEST_P(LineGraph, PaintsAHundredThousandWildSamplesInTime) {
    QList<double> data;
    for (int index = 0; index < 100000; ++index)
        data.append(index % 3 == 0 ? -1e300 : std::fmod(index * 0.37, 1.0));
    for (const auto style : {GraphLineStyle::smooth, GraphLineStyle::stepped, GraphLineStyle::dotted}) {
        AnimatedLineGraph graph = bare(data);
        graph.lineStyle = style;
        graph.showGlow = true;
        EXPECT_FALSE(paintedRect(paintedGraph(graph, {300, 40})).isEmpty());
    }
}

TEST_P(LineGraph, KeepsTheOpacityOfItsColor) {
    AnimatedLineGraph graph = bare({0.5, 0.5});
    graph.lineColor = QColor(0, 255, 255, 128);
    graph.fillGradient = true;
    const QImage image = paintedGraph(graph);
    EXPECT_NEAR(colorAt(image, 30, 35).alphaF(), 0.1, 0.01) << "a fifth of a half";
}

} // namespace
} // namespace orvelle
