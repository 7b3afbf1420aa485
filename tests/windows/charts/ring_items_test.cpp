#include "animation/animation_timing.h"
#include "quick_fixture.h"
#include "windows/charts/ring_items.h"

namespace orvelle {
namespace {

class RingItem : public QuickFixture {
protected:
    RingItem() {
        ring->setProperty("size", 50);
        ring->setProperty("value", 0.5);
    }
    void setSpeed(AnimationSpeed speed) { ring->setProperty("animationSpeed", QVariant::fromValue(speed)); }
    void makeCritical() {
        ring->setProperty("pulseCritical", true);
        ring->setProperty("value", 0.95);
    }

    std::unique_ptr<AnimatedRingChartItem> ring = placed<AnimatedRingChartItem>();
};

TEST_F(RingItem, FillsWhenItIsFirstShown) {
    EXPECT_EQ(ring->animatedValue(), 0);
    showWindow();
    EXPECT_EQ(ring->animatedValue(), 0);
    pass(0.39); // thirteen frames
    EXPECT_NEAR(ring->animatedValue(), 0.5 * easeOut().valueForProgress(0.39 / 0.8), 1e-6);
    pass(0.42);
    EXPECT_EQ(ring->animatedValue(), 0.5);
    EXPECT_FALSE(clock.isRunning());
}

TEST_F(RingItem, OpensOnlyOnce) {
    showWindow();
    pass(1);
    window.hide();
    showWindow();
    EXPECT_EQ(ring->animatedValue(), 0.5);
    EXPECT_FALSE(clock.isRunning());
}

TEST_F(RingItem, OpensAndChangesInTheTimesOfItsSpeed) {
    for (const auto speed : {AnimationSpeed::slow, AnimationSpeed::normal, AnimationSpeed::fast}) {
        ring = placed<AnimatedRingChartItem>();
        setSpeed(speed);
        ring->setProperty("value", 1);
        showWindow();
        pass(*ringOpeningSeconds(speed) - 0.05);
        EXPECT_LT(ring->animatedValue(), 1);
        pass(0.07);
        EXPECT_EQ(ring->animatedValue(), 1);
        ring->setProperty("value", 0.2);
        pass(*ringChangeSeconds(speed) - 0.05);
        EXPECT_GT(ring->animatedValue(), 0.2);
        pass(0.07);
        EXPECT_EQ(ring->animatedValue(), 0.2);
        window.hide();
    }
}

TEST_F(RingItem, ShowsItsValueAtOnceAtSpeedInstant) {
    setSpeed(AnimationSpeed::instant);
    showWindow();
    EXPECT_EQ(ring->animatedValue(), 0.5);
    ring->setProperty("value", 0.7);
    EXPECT_EQ(ring->animatedValue(), 0.7);
    EXPECT_FALSE(clock.isRunning());
}

TEST_F(RingItem, StartsFromTheShownValueWhenTheValueChangesDuringATransition) {
    showWindow();
    pass(1);
    ring->setProperty("value", 0.9);
    pass(0.21);
    const double before = ring->animatedValue();
    EXPECT_NEAR(before, 0.5 + 0.4 * easeInOut().valueForProgress(0.21 / 0.4), 1e-6);
    ring->setProperty("value", 0.1);
    EXPECT_EQ(ring->animatedValue(), before);
    pass(0.42);
    EXPECT_EQ(ring->animatedValue(), 0.1);
}

TEST_F(RingItem, StopsRepaintingOnceItHasSettled) {
    showWindow();
    pass(0.8);
    EXPECT_EQ(framesWhenLeftAlone(), 0);
}

TEST_F(RingItem, PulsesWhileTheValueIsCritical) {
    makeCritical();
    showWindow();
    pass(0.8);
    EXPECT_NEAR(ring->pulseScale(), 1.03, 1e-9) << "the pulse begins with the opening";
    pass(0.8);
    EXPECT_NEAR(ring->pulseScale(), 1, 1e-9);
    pass(10);
    EXPECT_TRUE(clock.isRunning());
}

TEST_F(RingItem, StopsTheClockWhenTheValueIsNoLongerCritical) {
    makeCritical();
    showWindow();
    pass(2);
    ring->setProperty("value", 0.3);
    pass(0.5);
    EXPECT_EQ(ring->animatedValue(), 0.3);
    EXPECT_FALSE(clock.isRunning());
    EXPECT_EQ(framesWhenLeftAlone(), 0);
}

TEST_F(RingItem, ResumesThePulseAtItsPresentPhase) {
    makeCritical();
    showWindow();
    pass(0.8);
    ring->setProperty("value", 0.3);
    pass(0.8 * 3);
    ring->setProperty("value", 0.95);
    EXPECT_NEAR(ring->pulseScale(), 1, 1e-6) << "four legs after its start";
    pass(0.4);
    EXPECT_NEAR(ring->pulseScale(), 1.015, 1e-5);
    EXPECT_TRUE(clock.isRunning());
}

TEST_F(RingItem, BeginsToPulseOnlyWithAChangeOfItsValue) {
    ring->setProperty("value", 0.95);
    showWindow();
    pass(1);
    ring->setProperty("pulseCritical", true);
    EXPECT_FALSE(clock.isRunning());
    ring->setProperty("value", 0.96);
    pass(1);
    EXPECT_TRUE(clock.isRunning());
    EXPECT_GT(ring->pulseScale(), 1);
}

TEST_F(RingItem, DoesNotPulseUnlessPulseCriticalIsSet) {
    ring->setProperty("value", 1);
    showWindow();
    pass(1);
    EXPECT_FALSE(clock.isRunning());
    EXPECT_EQ(ring->pulseScale(), 1);
}

TEST_F(RingItem, PulsesAtEveryValueWithAThresholdOfZero) {
    ring->setProperty("pulseCritical", true);
    ring->setProperty("criticalThreshold", 0);
    ring->setProperty("value", 0);
    showWindow();
    pass(1);
    EXPECT_TRUE(clock.isRunning());
}

TEST_F(RingItem, KeepsItsLabelsAbsentUntilTheyAreSet) {
    EXPECT_TRUE(ring->label().isNull());
    ring->setProperty("label", QStringLiteral("50%"));
    EXPECT_EQ(ring->label(), QVariant(QStringLiteral("50%")));
    ring->setProperty("label", QVariant());
    EXPECT_TRUE(ring->label().isNull());
}

class SegmentRingItem : public QuickFixture {
protected:
    SegmentRingItem() {
        ring->setProperty("size", 40);
        ring->setProperty("lineWidth", 10);
        ring->setProperty("segments", QVariantList{segment(1, Qt::red), segment(1, Qt::blue)});
    }
    static QVariantMap segment(double value, const QColor& color) {
        return {{QStringLiteral("value"), value}, {QStringLiteral("color"), color}};
    }

    std::unique_ptr<MultiSegmentRingItem> ring = placed<MultiSegmentRingItem>();
};

TEST_F(SegmentRingItem, OpensOnceWithinASecond) {
    EXPECT_EQ(ring->animatedProgress(), 0);
    showWindow();
    pass(0.51);
    EXPECT_NEAR(ring->animatedProgress(), easeOut().valueForProgress(0.51), 1e-6);
    pass(0.51);
    EXPECT_EQ(ring->animatedProgress(), 1);
    EXPECT_FALSE(clock.isRunning());
    window.hide();
    showWindow();
    EXPECT_EQ(ring->animatedProgress(), 1);
}

TEST_F(SegmentRingItem, ShowsOtherSegmentsAtOnce) {
    showWindow();
    pass(1.02);
    waitUntilQuiet();
    EXPECT_EQ(colorAt(90 + 20, 55), QColor(Qt::red)) << "the right half";
    EXPECT_EQ(colorAt(90 - 20, 55), QColor(Qt::blue));
    ring->setProperty("segments", QVariantList{segment(1, Qt::green)});
    EXPECT_FALSE(clock.isRunning());
    waitForFrame();
    EXPECT_EQ(colorAt(90 + 20, 55), QColor(Qt::green));
    EXPECT_EQ(colorAt(90 - 20, 55), QColor(Qt::green));
}

class GaugeItem : public QuickFixture {
protected:
    GaugeItem() {
        gauge->setProperty("maxTemp", 100);
        gauge->setProperty("temperature", 40);
    }
    std::unique_ptr<TemperatureGaugeItem> gauge = placed<TemperatureGaugeItem>();
};

TEST_F(GaugeItem, ShowsItsTemperatureAtOnceWhenItIsFirstShown) {
    showWindow();
    EXPECT_EQ(gauge->shownFraction(), 0.4);
    EXPECT_FALSE(clock.isRunning());
}

TEST_F(GaugeItem, EasesItsDialInHalfASecond) {
    showWindow();
    gauge->setProperty("temperature", 80);
    pass(0.21);
    EXPECT_NEAR(gauge->shownFraction(), 0.4 + 0.4 * easeInOut().valueForProgress(0.42), 1e-6);
    pass(0.3);
    EXPECT_EQ(gauge->shownFraction(), 0.8);
    EXPECT_FALSE(clock.isRunning());
}

TEST_F(GaugeItem, EasesItsGlowTogetherWithItsDial) {
    gauge->setProperty("glowIntensity", QVariant::fromValue(GlowIntensity::intense));
    showWindow();
    // Beside the filled part of the dial, whose centre is (90, 65) and whose stroke ends 38 points from it.
    const auto halo = [this] { return colorAt(90 - 40, 65 - 8); };
    const auto redPerGreen = [&] {
        const QColor color = halo();
        EXPECT_GT(color.value(), 30);
        return static_cast<double>(color.red()) / color.green();
    };
    EXPECT_LT(redPerGreen(), 0.5) << "green while it is cool";
    gauge->setProperty("temperature", 95);
    waitForFrame();
    EXPECT_LT(redPerGreen(), 0.5) << "the dial has not moved yet either";
    pass(0.25);
    waitForFrame();
    EXPECT_GT(redPerGreen(), 0.8);
    EXPECT_LT(redPerGreen(), 2) << "half way between green and red";
    pass(0.25);
    waitForFrame();
    EXPECT_GT(redPerGreen(), 3);
}

TEST_F(GaugeItem, ShowsAnotherStrengthOfGlowAtOnce) {
    showWindow();
    gauge->setProperty("showGlow", false);
    EXPECT_FALSE(clock.isRunning());
}

TEST_F(GaugeItem, HasTheImplicitSizeOfDialAndCaption) {
    EXPECT_EQ(gauge->implicitWidth(), 70);
    EXPECT_EQ(gauge->implicitHeight(), TemperatureGauge{}.height());
}

} // namespace
} // namespace orvelle
