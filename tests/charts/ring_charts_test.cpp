#include "at_scale.h"
#include "charts/ring_charts.h"
#include "support/odd_numbers.h"
#include "theme/colors.h"

namespace orvelle {
namespace {

constexpr double middle = 60; ///< of the image, in which a ring of 80 points has room for stroke and glow

class Rings : public AtScale {
protected:
    static AnimatedRingChart ring(RingChartStyle style, double value) {
        AnimatedRingChart chart{.value = value,
                                .lineWidth = 10,
                                .size = 80,
                                .baseColor = Qt::blue,
                                .trackColor = QColor(255, 255, 255, 40),
                                .showGlow = false,
                                .ringStyle = style};
        chart.animatedValue = chart.target();
        return chart;
    }

    [[nodiscard]] QImage paintedRing(const AnimatedRingChart& chart) const {
        return painted({120, 120}, [&](QPainter& painter) { chart.paint(painter, {20, 20, 80, 80}); });
    }

    /// The colour on the middle of the stroke, this many degrees clockwise from twelve o'clock.
    [[nodiscard]] QColor strokeColorAt(const QImage& image, double degrees, double radius = 40) const {
        const double angle = qDegreesToRadians(degrees);
        return colorAt(image, middle + radius * std::sin(angle), middle - radius * std::cos(angle));
    }

    [[nodiscard]] bool isTrack(const QColor& color) const { return isNear(color, QColor(255, 255, 255, 40)); }
};

INSTANTIATE_TEST_SUITE_P(, Rings, bothScales);

TEST_P(Rings, FullRingFillsClockwiseFromTwelveOClock) {
    const QImage image = paintedRing(ring(RingChartStyle::fullRing, 0.5));
    EXPECT_EQ(strokeColorAt(image, 45).blue(), 255);
    EXPECT_GT(strokeColorAt(image, 150).alpha(), strokeColorAt(image, 30).alpha()) << "it grows denser";
    EXPECT_TRUE(isTrack(strokeColorAt(image, 225)));
    EXPECT_TRUE(isTrack(strokeColorAt(image, 300)));
}

TEST_P(Rings, StrokeLiesOnTheCircleOfTheirSize) {
    const QImage image = paintedRing(ring(RingChartStyle::fullRing, 0));
    EXPECT_EQ(paintedRect(image), QRect(pixels(15), pixels(15), pixels(90), pixels(90)));
    EXPECT_EQ(ring(RingChartStyle::fullRing, 0).overhang(), 5);
}

TEST_P(Rings, EndsTheirStrokesInRoundCaps) {
    const QImage image = paintedRing(ring(RingChartStyle::fullRing, 0.25));
    EXPECT_LT(strokeColorAt(image, 94).red(), 60) << "half the width of the stroke beyond the end";
    EXPECT_TRUE(isTrack(strokeColorAt(image, 96, 44))) << "but not at its edge";
    EXPECT_TRUE(isTrack(strokeColorAt(image, 100)));
}

TEST_P(Rings, HalfGaugeFillsTheUpperHalfFromTheLeft) {
    const QImage image = paintedRing(ring(RingChartStyle::halfGauge, 0.5));
    EXPECT_EQ(strokeColorAt(image, -60).blue(), 255);
    EXPECT_LT(strokeColorAt(image, -60).red(), 60);
    EXPECT_TRUE(isTrack(strokeColorAt(image, 60)));
    EXPECT_EQ(strokeColorAt(image, 180).alpha(), 0);
    EXPECT_EQ(strokeColorAt(image, 120).alpha(), 0);
}

TEST_P(Rings, ArcGaugeIsOpenAtTheBottomAndBlendsFromTheBaseColor) {
    const QImage image = paintedRing(ring(RingChartStyle::arcGauge, 1));
    EXPECT_EQ(strokeColorAt(image, 180).alpha(), 0);
    EXPECT_GT(strokeColorAt(image, -90).blue(), 200) << "the base colour on the left";
    EXPECT_GT(strokeColorAt(image, 90).red(), 200) << "the status colour on the right";
    EXPECT_TRUE(isTrack(strokeColorAt(paintedRing(ring(RingChartStyle::arcGauge, 0.5)), 130)));
}

TEST_P(Rings, PieFillsAWedgeAndHasADarkHub) {
    const QImage image = paintedRing(ring(RingChartStyle::pieChart, 0.5));
    EXPECT_EQ(strokeColorAt(image, 60, 32).blue(), 255);
    EXPECT_TRUE(isTrack(strokeColorAt(image, 240, 32)));
    const QColor hub = strokeColorAt(image, 60, 10);
    EXPECT_GT(hub.alpha(), 150);
    EXPECT_LT(hub.blue(), 200);
    EXPECT_EQ(paintedRect(image), QRect(pixels(20), pixels(20), pixels(80), pixels(80)));
}

TEST_P(Rings, AreFullAndRedAboveOne) {
    for (const auto style : {RingChartStyle::fullRing, RingChartStyle::halfGauge, RingChartStyle::pieChart}) {
        const AnimatedRingChart full = ring(style, 1.4);
        EXPECT_EQ(full.target(), 1);
        const QColor nearTheEnd = strokeColorAt(paintedRing(full), 80, 36);
        EXPECT_TRUE(isNear(nearTheEnd, QColor(255, 69, 58, nearTheEnd.alpha()), 25));
        EXPECT_GT(nearTheEnd.alpha(), 180);
    }
}

TEST_P(Rings, AreEmptyBelowZero) {
    for (const auto style : {RingChartStyle::fullRing, RingChartStyle::halfGauge, RingChartStyle::arcGauge,
                             RingChartStyle::pieChart}) {
        const AnimatedRingChart empty = ring(style, -0.2);
        EXPECT_EQ(empty.target(), 0);
        EXPECT_EQ(paintedRing(empty), paintedRing(ring(style, 0)));
        AnimatedRingChart glowing = empty;
        glowing.showGlow = true;
        glowing.glowIntensity = GlowIntensity::intense;
        EXPECT_EQ(paintedRing(glowing), paintedRing(empty)) << "there is nothing to glow";
    }
}

TEST_P(Rings, ShowTheAnimatedValueInTheColorOfTheRealOne) {
    AnimatedRingChart opening = ring(RingChartStyle::fullRing, 0.9);
    opening.animatedValue = 0.25;
    const QImage image = paintedRing(opening);
    EXPECT_TRUE(isTrack(strokeColorAt(image, 180)));
    EXPECT_TRUE(isNear(strokeColorAt(image, 45), QColor(255, 69, 58, strokeColorAt(image, 45).alpha()), 30));
}

TEST_P(Rings, GlowInTheStatusColorWithinTheirOverhang) {
    AnimatedRingChart chart = ring(RingChartStyle::fullRing, 0.7);
    const QImage plain = paintedRing(chart);
    chart.showGlow = true;
    chart.glowIntensity = GlowIntensity::intense;
    const QImage image = paintedRing(chart);
    EXPECT_EQ(strokeColorAt(plain, 90, 49).alpha(), 0);
    const QColor halo = strokeColorAt(image, 90, 49);
    EXPECT_TRUE(isNear(halo, QColor(255, 214, 10, halo.alpha()), 16));
    EXPECT_GT(halo.alpha(), 20);
    EXPECT_TRUE(isTrack(strokeColorAt(image, 310))) << "the track does not glow";
    const double reach = 40 + chart.overhang();
    const QRectF allowed(pixels(middle - reach), pixels(middle - reach), pixels(2 * reach),
                         pixels(2 * reach));
    EXPECT_TRUE(allowed.contains(paintedRect(image)));
}

TEST_P(Rings, ScaleAboutTheirCentreOnlyWhileCritical) {
    AnimatedRingChart chart = ring(RingChartStyle::fullRing, 0.95);
    chart.pulseScale = 1.03;
    EXPECT_EQ(chart.shownScale(), 1) << "switched off";
    const QImage still = paintedRing(chart);
    chart.pulseCritical = true;
    EXPECT_EQ(chart.shownScale(), 1.03);
    const QRect pulsed = paintedRect(paintedRing(chart));
    EXPECT_GT(pulsed.width(), paintedRect(still).width());
    EXPECT_EQ(pulsed.center(), paintedRect(still).center());
    chart.value = 0.85;
    EXPECT_EQ(chart.shownScale(), 1) << "no longer critical, whatever scale the host still moves";
    chart.criticalThreshold = 0;
    chart.value = 0;
    EXPECT_EQ(chart.shownScale(), 1.03) << "a threshold of 0 pulses at every value";
    chart.pulseScale = notANumber;
    EXPECT_EQ(chart.shownScale(), 1);
}

TEST_P(Rings, CarryTheirLabelsInTheMiddle) {
    AnimatedRingChart chart = ring(RingChartStyle::halfGauge, 0);
    chart.trackColor = Qt::transparent;
    EXPECT_TRUE(paintedRect(paintedRing(chart)).isEmpty());
    chart.label = QStringLiteral("42%");
    const QRect label = paintedRect(paintedRing(chart));
    EXPECT_NEAR(label.center().x(), pixels(middle), pixels(2));
    EXPECT_NEAR(label.center().y(), pixels(middle), pixels(2));
    EXPECT_NEAR(label.height(), pixels(80 * 0.22 * 0.73), pixels(4)) << "about the height of digits";
    chart.sublabel = QStringLiteral("Used");
    const QImage both = paintedRing(chart);
    EXPECT_LT(paintedRect(both).top(), label.top()) << "the two are centred together";
    EXPECT_GT(paintedRect(both).bottom(), label.bottom());
    EXPECT_GT(countPixels(both, Qt::white), 0);
}

TEST_P(Rings, ShortenALabelThatIsTooLong) {
    AnimatedRingChart chart = ring(RingChartStyle::fullRing, 0);
    chart.label = QString(500, QLatin1Char('8'));
    EXPECT_TRUE(
        QRect(pixels(15), pixels(15), pixels(90), pixels(90)).contains(paintedRect(paintedRing(chart))));
}

TEST_P(Rings, KeepTheirPictureWhilePulsing) {
    AnimatedRingChart chart = ring(RingChartStyle::fullRing, 0.95);
    chart.showGlow = true;
    chart.pulseCritical = true;
    chart.label = QStringLiteral("95%");
    PictureCache<AnimatedRingChart> cache;
    const auto kept = [&](QPainter& painter) { chart.paint(painter, {20, 20, 80, 80}, &cache); };
    EXPECT_LE(largestDifference(painted({120, 120}, kept), paintedRing(chart)), 3);
    for (const double scale : {1.01, 1.02, 1.03, 1.0}) {
        chart.pulseScale = scale;
        (void)painted({120, 120}, kept);
    }
    chart.label = QStringLiteral("96%");
    EXPECT_LE(largestDifference(painted({120, 120}, kept), paintedRing(chart)), 3);
    EXPECT_LE(cache.drawCount(), 3U) << "once, and anew when it leaves and returns to the pixel grid";
    chart.animatedValue = 0.5;
    EXPECT_LE(largestDifference(painted({120, 120}, kept), paintedRing(chart)), 3);
}

TEST_P(Rings, SurviveAnyInput) {
    for (const auto style : {RingChartStyle::fullRing, RingChartStyle::halfGauge, RingChartStyle::arcGauge,
                             RingChartStyle::pieChart}) {
        for (const double number : {notANumber, infinity, -infinity, -1.0, 0.0, 0.3, 1e-9, 1e300}) {
            AnimatedRingChart chart = ring(style, number);
            chart.animatedValue = number;
            chart.showGlow = true;
            (void)paintedRing(chart);
            chart = ring(style, 0.5);
            chart.showGlow = true;
            chart.lineWidth = number;
            (void)paintedRing(chart);
            chart.size = number;
            chart.label = QStringLiteral("50%");
            (void)paintedRing(chart);
        }
    }
}

class SegmentRing : public Rings {
protected:
    static MultiSegmentRing ring(const QList<double>& values) {
        const QList<QColor> colors{Qt::red, Qt::green, Qt::blue};
        MultiSegmentRing ring{
            .lineWidth = 10, .size = 80, .trackColor = QColor(255, 255, 255, 40), .animatedProgress = 1};
        for (qsizetype index = 0; index < values.size(); ++index)
            ring.segments.append({.value = values[index], .color = colors[index % colors.size()]});
        return ring;
    }

    [[nodiscard]] QImage paintedSegments(const MultiSegmentRing& ring) const {
        return painted({120, 120}, [&](QPainter& painter) { ring.paint(painter, {20, 20, 80, 80}); });
    }
};

INSTANTIATE_TEST_SUITE_P(, SegmentRing, bothScales);

TEST_P(SegmentRing, DrawsItsSegmentsClockwiseInOrder) {
    const QImage image = paintedSegments(ring({1, 2, 1}));
    EXPECT_EQ(strokeColorAt(image, 45), QColor(Qt::red));
    EXPECT_EQ(strokeColorAt(image, 100), QColor(Qt::green));
    EXPECT_EQ(strokeColorAt(image, 260), QColor(Qt::green));
    EXPECT_EQ(strokeColorAt(image, 315), QColor(Qt::blue));
    EXPECT_EQ(paintedRect(image), QRect(pixels(15), pixels(15), pixels(90), pixels(90)));
}

TEST_P(SegmentRing, EndsEverySegmentExactlyWhereItsAngleIs) {
    MultiSegmentRing quarter = ring({1, 3});
    quarter.segments[1].color = Qt::transparent;
    const QImage image = paintedSegments(quarter);
    for (const double radius : {36.5, 40.0, 43.5}) {
        EXPECT_EQ(strokeColorAt(image, 3, radius), QColor(Qt::red)) << radius;
        EXPECT_EQ(strokeColorAt(image, 87, radius), QColor(Qt::red)) << radius;
        EXPECT_TRUE(isTrack(strokeColorAt(image, -3, radius))) << radius << ": no cap before it";
        EXPECT_TRUE(isTrack(strokeColorAt(image, 93, radius))) << radius << ": no cap behind it";
    }
}

TEST_P(SegmentRing, DrawsOnlyTheTrackWithoutASum) {
    const QImage track = paintedSegments(ring({}));
    EXPECT_TRUE(isTrack(strokeColorAt(track, 45)));
    EXPECT_EQ(paintedSegments(ring({0, 0, 0})), track);
    EXPECT_EQ(paintedSegments(ring({notANumber, 1})), track);
    EXPECT_EQ(paintedSegments(ring({infinity, 1})), track);
}

TEST_P(SegmentRing, ShowsASegmentOnceTheProgressHasPassedItsStart) {
    MultiSegmentRing opening = ring({1, 2, 1});
    opening.animatedProgress = 0.5;
    const QImage image = paintedSegments(opening);
    EXPECT_EQ(strokeColorAt(image, 20), QColor(Qt::red));
    EXPECT_TRUE(isTrack(strokeColorAt(image, 60))) << "the end of the first is scaled";
    EXPECT_EQ(strokeColorAt(image, 100), QColor(Qt::green));
    EXPECT_TRUE(isTrack(strokeColorAt(image, 150)));
    EXPECT_TRUE(isTrack(strokeColorAt(image, 315))) << "the third starts beyond the progress";
    opening.animatedProgress = 0;
    EXPECT_EQ(paintedSegments(opening), paintedSegments(ring({})));
}

TEST_P(SegmentRing, SurvivesAnyInput) {
    for (const double number : {notANumber, infinity, -infinity, -1.0, 0.0, 0.3, 1e300}) {
        MultiSegmentRing ring = SegmentRing::ring({number, 1, -3});
        (void)paintedSegments(ring);
        ring = SegmentRing::ring({1, 2});
        ring.animatedProgress = number;
        (void)paintedSegments(ring);
        ring.lineWidth = number;
        (void)paintedSegments(ring);
        ring.size = number;
        (void)paintedSegments(ring);
    }
}

} // namespace
} // namespace orvelle
