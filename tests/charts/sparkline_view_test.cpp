#include "at_scale.h"
#include "charts/line_geometry.h"
#include "charts/sparkline_view.h"
#include "support/odd_numbers.h"

namespace orvelle {
namespace {

TEST(SparklineScale, IsTheGivenMaximum) {
    EXPECT_EQ(sparklineScale({1, 2, 4}, 10), 10);
    EXPECT_EQ(sparklineScale({0, 0}, 10), 10);
}

TEST(SparklineScale, IsTheLargestSampleOtherwise) {
    EXPECT_EQ(sparklineScale({1, 4, 2}, 0), 4);
    EXPECT_EQ(sparklineScale({-1, 0.5}, -3), 0.5);
    EXPECT_EQ(sparklineScale({notANumber, 3}, 0), 3);
    EXPECT_EQ(sparklineScale({1, 3}, notANumber), 3);
}

TEST(SparklineScale, IsAbsentWhenNothingIsAboveZero) {
    EXPECT_EQ(sparklineScale({0, 0, 0}, 0), std::nullopt);
    EXPECT_EQ(sparklineScale({-1, -2}, 0), std::nullopt);
    EXPECT_EQ(sparklineScale({notANumber, notANumber}, 0), std::nullopt);
}

TEST(SparklineScale, IsAbsentForFewerThanTwoSamples) {
    EXPECT_EQ(sparklineScale({}, 1), std::nullopt);
    EXPECT_EQ(sparklineScale({5}, 1), std::nullopt);
}

TEST(SparklinePath, IsLevelAtEverySample) {
    const QPainterPath path = sparklinePath({{0, 8}, {10, 2}, {20, 5}});
    ASSERT_EQ(path.elementCount(), 7);
    EXPECT_EQ(QPointF(path.elementAt(1)), QPointF(5, 8));
    EXPECT_EQ(QPointF(path.elementAt(2)), QPointF(5, 2));
    EXPECT_EQ(QPointF(path.elementAt(3)), QPointF(10, 2));
    EXPECT_EQ(QPointF(path.elementAt(4)), QPointF(15, 2));
    EXPECT_EQ(QPointF(path.elementAt(5)), QPointF(15, 5));
    EXPECT_EQ(QPointF(path.elementAt(6)), QPointF(20, 5));
}

TEST(SparklinePath, OfTwoPointsIsStraight) {
    const QPainterPath path = sparklinePath({{0, 8}, {10, 2}});
    ASSERT_EQ(path.elementCount(), 2);
    EXPECT_TRUE(path.elementAt(1).isLineTo());
    EXPECT_TRUE(sparklinePath({{1, 1}}).isEmpty());
}

class Sparkline : public AtScale {
protected:
    static SparklineView view(const QList<double>& data) {
        return {.data = data,
                .maxValue = 0,
                .lineColor = Qt::green,
                .fillColor = {},
                .lineWidth = 1,
                .width = 40,
                .height = 12};
    }

    [[nodiscard]] QImage paintedView(const SparklineView& view, const QSizeF& size = {40, 12}) const {
        return painted(size, [&](QPainter& painter) { view.paint(painter, {{0, 0}, size}); });
    }
};

INSTANTIATE_TEST_SUITE_P(, Sparkline, bothScales);

TEST_P(Sparkline, DrawsNothingWhenThereIsNothingAboveZero) {
    for (const QList<double>& data : {QList<double>{}, {3}, {0, 0, 0}, {-1, -2}, {notANumber, notANumber}})
        EXPECT_TRUE(paintedRect(paintedView(view(data))).isEmpty());
}

TEST_P(Sparkline, TouchesAPointBelowTheTopAtFullScale) {
    const auto points = samplePoints({1, 2, 4}, 4, {40, 12}, sparklineTopInset);
    EXPECT_EQ(points.last(), QPointF(40, 1));
    const QImage image = paintedView(view({4, 4}));
    EXPECT_GT(colorAt(image, 20, 1).alpha(), 100);
    EXPECT_GT(colorAt(image, 20, 0.5).alpha(), 100);
    EXPECT_EQ(paintedRect(image).top(), pixels(0.5));
}

TEST_P(Sparkline, FillsUnderItsLine) {
    const QImage defaultFill = paintedView(view({1, 1}));
    EXPECT_NEAR(colorAt(defaultFill, 20, 8).alphaF(), 0.2, 0.01);
    EXPECT_EQ(colorAt(defaultFill, 20, 8).green(), 255);
    SparklineView own = view({1, 1});
    own.fillColor = QColor(255, 0, 0, 128);
    EXPECT_TRUE(isNear(colorAt(paintedView(own), 20, 8), QColor(255, 0, 0, 128)));
    own.fillColor = QColor(Qt::transparent);
    EXPECT_EQ(colorAt(paintedView(own), 20, 8).alpha(), 0) << "a clear fill is not an absent one";
}

TEST_P(Sparkline, DrawsItsLineOverItsFill) {
    SparklineView sparkline = view({1, 1});
    sparkline.maxValue = 2;
    sparkline.height = 11;
    sparkline.lineWidth = 2;
    sparkline.fillColor = QColor(Qt::red);
    EXPECT_EQ(colorAt(paintedView(sparkline, {40, 11}), 20, 6), QColor(Qt::green));
}

TEST_P(Sparkline, StaysOnItsCanvasInTheMiddleOfItsBounds) {
    const auto paint = [&](QPainter& painter) { view({1, -1, 1}).paint(painter, {10, 10, 60, 32}); };
    const QImage image = painted({80, 60}, paint);
    EXPECT_TRUE(QRect(pixels(20), pixels(20), pixels(40), pixels(12)).contains(paintedRect(image)));
    EXPECT_FALSE(paintedRect(image).isEmpty());
}

TEST_P(Sparkline, SurvivesAnyInput) {
    for (const double sample : {notANumber, infinity, -infinity, 1e308, -1e308}) {
        for (const double number : {notANumber, infinity, -1.0, 0.0, 0.3, 1e300, 12.0}) {
            SparklineView sparkline = view({sample, 1, sample});
            sparkline.maxValue = number;
            (void)paintedView(sparkline);
            sparkline.lineWidth = number;
            (void)paintedView(sparkline);
            sparkline.height = number;
            (void)paintedView(sparkline);
            sparkline.width = number;
            (void)paintedView(sparkline);
        }
    }
}

TEST_P(Sparkline, PaintsAHundredThousandSamplesInTime) {
    QList<double> data;
    for (int index = 0; index < 100000; ++index)
        data.append(index % 7);
    const QImage image = paintedView(view(data));
    EXPECT_GT(colorAt(image, 20, 6).alpha(), 200);
}

TEST_P(Sparkline, PairIsDrawnBottomFirstWithoutASharedScale) {
    const DualSparklineView pair{.topData = {1, 1},
                                 .bottomData = {1000, 1000},
                                 .topColor = Qt::green,
                                 .bottomColor = Qt::red,
                                 .width = 40,
                                 .height = 12};
    const auto paint = [&](QPainter& painter) { pair.paint(painter, {0, 0, 40, 12}); };
    const QImage image = painted({40, 12}, paint);
    EXPECT_GT(colorAt(image, 20, 1).green(), colorAt(image, 20, 1).red())
        << "both lines stand at full scale, and the top one covers the other";
}

TEST(DualSparklineView, LayersItsTwoSparklines) {
    const DualSparklineView pair{.topData = {1, 2},
                                 .bottomData = {3, 4},
                                 .topColor = Qt::green,
                                 .bottomColor = Qt::red,
                                 .width = 36,
                                 .height = 14};
    const QList<SparklineView> layers = pair.layers();
    ASSERT_EQ(layers.size(), 2);
    EXPECT_EQ(layers[0].data, pair.bottomData);
    EXPECT_EQ(layers[0].lineColor, QColor(Qt::red));
    EXPECT_NEAR(layers[0].fillColor.value().alphaF(), 0.15, 0.001);
    EXPECT_EQ(layers[1].data, pair.topData);
    EXPECT_EQ(layers[1].lineColor, QColor(Qt::green));
    EXPECT_NEAR(layers[1].fillColor.value().alphaF(), 0.1, 0.001);
    for (const SparklineView& layer : layers) {
        EXPECT_EQ(layer.maxValue, 0);
        EXPECT_EQ(layer.lineWidth, 1);
        EXPECT_EQ(layer.width, 36);
        EXPECT_EQ(layer.height, 14);
    }
}

} // namespace
} // namespace orvelle
