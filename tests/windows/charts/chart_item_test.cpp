#include "quick_fixture.h"
#include "windows/charts/animated_bar_chart_item.h"
#include "windows/charts/chart_item.h"
#include "windows/charts/ring_items.h"

namespace orvelle {
namespace {

/// Chosen before the first window, because it cannot change afterwards.
class SoftwareSceneGraph : public ::testing::Environment {
    void SetUp() override { QQuickWindow::setGraphicsApi(QSGRendererInterface::Software); }
};
const auto* const softwareSceneGraph = ::testing::AddGlobalTestEnvironment(new SoftwareSceneGraph);

class ChartItemTest : public QuickFixture {
protected:
    ChartItemTest() {
        setValue(0.2);
        chart->setProperty("baseColor", QColor(Qt::blue));
        chart->setProperty("glowIntensity", QVariant::fromValue(GlowIntensity::intense));
    }
    void setValue(double value) { chart->setProperty("values", QVariant::fromValue(QList<double>{value})); }
    [[nodiscard]] double ratio() const { return chart->shownLooks().at(0).ratio; }

    std::unique_ptr<AnimatedBarChartItem> chart = placed<AnimatedBarChartItem>();
};

TEST_F(ChartItemTest, RepaintsWhenAFieldChangesAndNotWhenItIsSetToTheSame) {
    showWindow();
    chart->setProperty("barStyle", QVariant::fromValue(BarChartStyle::square));
    waitForFrame();
    int changes = 0;
    QObject::connect(chart.get(), &ChartItem::changed, chart.get(), [&changes] { ++changes; });
    chart->setProperty("barStyle", QVariant::fromValue(BarChartStyle::square));
    setValue(0.2);
    chart->setProperty("maxValue", 1.0);
    EXPECT_EQ(changes, 0);
    EXPECT_EQ(framesWhenLeftAlone(), 0);
}

TEST_F(ChartItemTest, RepaintsOnlyWhileItAnimates) {
    showWindow();
    setValue(0.9);
    waitForFrame();
    for (int step = 0; step < 3; ++step) {
        pass(0.04);
        waitForFrame();
    }
    pass(3);
    EXPECT_FALSE(clock.isRunning());
    EXPECT_EQ(framesWhenLeftAlone(), 0);
}

TEST_F(ChartItemTest, DoesNotAnimateBeforeItIsShown) {
    setValue(0.9);
    EXPECT_EQ(ratio(), 0.9);
    EXPECT_FALSE(clock.isRunning());
}

TEST_F(ChartItemTest, DoesNotAnimateWhileItIsHidden) {
    showWindow();
    setValue(0.9);
    EXPECT_TRUE(clock.isRunning());
    chart->setVisible(false);
    EXPECT_FALSE(clock.isRunning());
    setValue(0.5);
    EXPECT_FALSE(clock.isRunning());
    chart->setVisible(true);
    EXPECT_EQ(ratio(), 0.5) << "it comes back with the newest value";
    EXPECT_FALSE(clock.isRunning());
    setValue(0.6);
    EXPECT_TRUE(clock.isRunning());
}

TEST_F(ChartItemTest, DoesNotAnimateInAHiddenParentOrAHiddenWindow) {
    QQuickItem part(window.contentItem());
    chart->setParentItem(&part);
    showWindow();
    setValue(0.9);
    part.setVisible(false);
    EXPECT_FALSE(clock.isRunning());
    part.setVisible(true);
    setValue(0.3);
    EXPECT_TRUE(clock.isRunning());
    window.hide();
    EXPECT_FALSE(clock.isRunning());
    EXPECT_EQ(ratio(), 0.3);
    setValue(0.4);
    EXPECT_FALSE(clock.isRunning());
}

TEST_F(ChartItemTest, DoesNotAnimateOutsideAnyWindow) {
    showWindow();
    chart->setParentItem(nullptr);
    setValue(0.9);
    EXPECT_EQ(ratio(), 0.9);
    EXPECT_FALSE(clock.isRunning());
}

TEST_F(ChartItemTest, StopsTheClockWhenItIsDestroyed) {
    showWindow();
    setValue(0.9);
    EXPECT_TRUE(clock.isRunning());
    chart.reset();
    EXPECT_FALSE(clock.isRunning());
}

TEST_F(ChartItemTest, ShowsChangesAtOnceUnderReducedMotion) {
    showWindow();
    setValue(0.9);
    pass(0.05);
    clock.setReduced(true);
    EXPECT_EQ(ratio(), 0.9);
    EXPECT_FALSE(clock.isRunning());
    setValue(0.1);
    EXPECT_EQ(ratio(), 0.1);
    EXPECT_FALSE(clock.isRunning());
    clock.setReduced(false);
    setValue(0.9);
    EXPECT_TRUE(clock.isRunning());
}

TEST_F(ChartItemTest, NeitherOpensNorPulsesUnderReducedMotion) {
    clock.setReduced(true);
    const auto ring = placed<AnimatedRingChartItem>();
    ring->setProperty("pulseCritical", true);
    ring->setProperty("value", 0.95);
    showWindow();
    EXPECT_EQ(ring->animatedValue(), 0.95);
    EXPECT_EQ(ring->pulseScale(), 1);
    EXPECT_FALSE(clock.isRunning());
    clock.setReduced(false);
    EXPECT_TRUE(clock.isRunning()) << "the value is critical still";
}

TEST_F(ChartItemTest, ShowsTheGlowBeyondItsEdges) {
    setValue(1);
    showWindow();
    EXPECT_GT(colorAt(90, 27).red(), 10) << "above the item, whose top is at 30";
    EXPECT_GT(colorAt(37, 60).red(), 10) << "to its left";
    chart->setProperty("showGlow", false);
    waitForFrame();
    EXPECT_EQ(colorAt(90, 27), QColor(Qt::black));
    EXPECT_EQ(colorAt(37, 60), QColor(Qt::black));
}

TEST_F(ChartItemTest, FollowsItsSize) {
    chart->setProperty("showGlow", false);
    setValue(1);
    showWindow();
    EXPECT_EQ(colorAt(160, 70), QColor(Qt::black));
    chart->setSize({140, 60});
    waitForFrame();
    EXPECT_GT(colorAt(160, 70).red(), 100);
    EXPECT_GT(colorAt(160, 88).red(), 100) << "its own height is the chart's";
}

TEST_F(ChartItemTest, HasTheImplicitHeightOfItsChart) {
    EXPECT_EQ(chart->implicitHeight(), AnimatedBarChart{}.height);
}

} // namespace
} // namespace orvelle
