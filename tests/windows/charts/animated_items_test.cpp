#include "animation/animation_timing.h"
#include "quick_fixture.h"
#include "windows/charts/animated_bar_chart_item.h"
#include "windows/charts/animated_line_graph_item.h"

namespace orvelle {
namespace {

QVariant values(const QList<double>& list) {
    return QVariant::fromValue(list);
}

class BarChartItem : public QuickFixture {
protected:
    BarChartItem() {
        chart->setProperty("baseColor", QColor(Qt::blue));
        chart->setProperty("values", values({0.2, 0.4}));
    }
    [[nodiscard]] double ratio(qsizetype index) const { return chart->shownLooks().at(index).ratio; }
    void expectAJumpTo(const QList<double>& list) {
        chart->setProperty("values", values(list));
        EXPECT_EQ(ratio(0), list[0]);
        EXPECT_EQ(ratio(1), list[1]);
        EXPECT_FALSE(clock.isRunning());
    }

    std::unique_ptr<AnimatedBarChartItem> chart = placed<AnimatedBarChartItem>();
};

TEST_F(BarChartItem, ShowsItsValuesAtOnceWhenItIsFirstShown) {
    showWindow();
    EXPECT_EQ(ratio(0), 0.2);
    EXPECT_EQ(ratio(1), 0.4);
    EXPECT_FALSE(clock.isRunning());
}

TEST_F(BarChartItem, FollowsAChangeByTheSpringOfItsSpeed) {
    for (const auto speed : {AnimationSpeed::slow, AnimationSpeed::normal, AnimationSpeed::fast}) {
        chart->setProperty("animationSpeed", QVariant::fromValue(speed));
        chart->setProperty("values", values({0.2, 0.4}));
        showWindow();
        chart->setProperty("values", values({0.7, 0.4}));
        EXPECT_EQ(ratio(0), 0.2);
        Spring expected(0.2);
        expected.retarget(0.7);
        for (int frame = 0; frame < 8; ++frame) {
            seconds += 0.04;
            clock.step();
            expected.advance(0.04, *barSpring(speed, true));
            EXPECT_NEAR(ratio(0), expected.position(), 1e-6);
            EXPECT_EQ(ratio(1), 0.4) << "only the bar that changed moves";
        }
        window.hide();
    }
}

TEST_F(BarChartItem, IsNotCutOffWhileItOvershoots) {
    chart->setProperty("barStyle", QVariant::fromValue(BarChartStyle::square));
    chart->setProperty("showGlow", false);
    chart->setProperty("values", values({0, 0}));
    showWindow();
    chart->setProperty("values", values({1, 0}));
    pass(0.28); // about half of the period that the damping leaves: the furthest way out
    EXPECT_NEAR(ratio(0), 1.046, 0.002);
    waitForFrame();
    EXPECT_GT(colorAt(60, 29).red(), 100) << "0.046 of 50 points above its place";
    EXPECT_EQ(colorAt(60, 26).red(), 0);
}

TEST_F(BarChartItem, KeepsItsVelocityWhenTheValueChangesDuringAnAnimation) {
    showWindow();
    chart->setProperty("values", values({1, 0.4}));
    pass(0.1);
    const double before = ratio(0);
    chart->setProperty("values", values({0, 0.4}));
    EXPECT_EQ(ratio(0), before);
    seconds += 0.04;
    clock.step();
    EXPECT_GT(ratio(0), before) << "it is carried on before it turns back";
    pass(3);
    EXPECT_EQ(ratio(0), 0);
}

TEST_F(BarChartItem, PaintsAFrameOnlyWhenABarHasMovedVisibly) {
    showWindow();
    chart->setProperty("values", values({0.24, 0.4})); // two points further
    waitUntilQuiet();
    frames = 0;
    for (int step = 0; step < 100; ++step) {
        pass(0.04);
        waitUntilQuiet();
    }
    EXPECT_FALSE(clock.isRunning());
    EXPECT_EQ(ratio(0), 0.24);
    EXPECT_GE(frames, 3);
    EXPECT_LE(frames, 6);
}

TEST_F(BarChartItem, MovesHeightAndColorTogetherAndEndsExactly) {
    showWindow();
    chart->setProperty("values", values({1, 0.4}));
    pass(0.1);
    const QColor between = chart->shownLooks().at(0).color;
    EXPECT_GT(between.red(), 10);
    EXPECT_GT(between.blue(), 10);
    pass(3);
    EXPECT_EQ(chart->shownLooks().at(0), (AnimatedBar{.value = 1, .baseColor = Qt::blue}.look()));
    EXPECT_FALSE(clock.isRunning());
    EXPECT_EQ(framesWhenLeftAlone(), 0);
}

TEST_F(BarChartItem, ShowsChangesAtOnceAtSpeedInstantAndWithoutAnimateChanges) {
    showWindow();
    chart->setProperty("animationSpeed", QVariant::fromValue(AnimationSpeed::instant));
    expectAJumpTo({0.9, 0.1});
    chart->setProperty("animationSpeed", QVariant::fromValue(AnimationSpeed::normal));
    chart->setProperty("animateChanges", false);
    expectAJumpTo({0.3, 0.8});
}

TEST_F(BarChartItem, EndsItsAnimationWhenItIsSwitchedOff) {
    showWindow();
    chart->setProperty("values", values({0.9, 0.1}));
    pass(0.05);
    chart->setProperty("animateChanges", false);
    EXPECT_EQ(ratio(0), 0.9);
    EXPECT_FALSE(clock.isRunning());
}

TEST_F(BarChartItem, ShowsAnotherBaseColorAtOnce) {
    showWindow();
    chart->setProperty("baseColor", QColor(Qt::green));
    EXPECT_EQ(chart->shownLooks().at(0).color, QColor(Qt::green));
    EXPECT_FALSE(clock.isRunning());
}

TEST_F(BarChartItem, ShowsNewBarsAtOnceAndForgetsRemovedOnes) {
    showWindow();
    chart->setProperty("values", values({0.2, 0.4, 0.6}));
    ASSERT_EQ(chart->shownLooks().size(), 3);
    EXPECT_EQ(ratio(2), 0.6);
    EXPECT_FALSE(clock.isRunning());
    chart->setProperty("values", values({}));
    EXPECT_TRUE(chart->shownLooks().isEmpty());
    chart->setProperty("values", values({0.9}));
    EXPECT_EQ(ratio(0), 0.9);
}

class LineGraphItem : public QuickFixture {
protected:
    LineGraphItem() {
        graph->setProperty("lineColor", QColor(Qt::white));
        graph->setProperty("data", values({0, 1, 0}));
    }
    std::unique_ptr<AnimatedLineGraphItem> graph = placed<AnimatedLineGraphItem>();
};

TEST_F(LineGraphItem, ShowsItsDataAtOnceWhenItIsFirstShown) {
    EXPECT_TRUE(graph->animatedData().isEmpty());
    showWindow();
    EXPECT_EQ(graph->animatedData(), (QList<double>{0, 1, 0}));
    EXPECT_FALSE(clock.isRunning());
    EXPECT_GT(colorAt(90, 32).red(), 100) << "the peak in the middle";
}

TEST_F(LineGraphItem, EasesToNewDataInThreeTenthsOfASecond) {
    showWindow();
    graph->setProperty("data", values({1, 0, 1}));
    EXPECT_EQ(graph->animatedData(), (QList<double>{0, 1, 0}));
    pass(0.1);
    const double progress = easeInOut().valueForProgress(1.0 / 3);
    EXPECT_NEAR(graph->animatedData().at(0), progress, 1e-6);
    EXPECT_NEAR(graph->animatedData().at(1), 1 - progress, 1e-6);
    pass(0.2);
    EXPECT_EQ(graph->animatedData(), (QList<double>{1, 0, 1}));
    EXPECT_FALSE(clock.isRunning());
    EXPECT_EQ(framesWhenLeftAlone(), 0);
}

TEST_F(LineGraphItem, RedrawsAtMostTenTimesASecond) {
    showWindow();
    int steps = 0;
    QObject::connect(graph.get(), &ChartItem::animated, graph.get(), [&steps] { ++steps; });
    for (int change = 0; change < 10; ++change) {
        graph->setProperty("data", values({0, change / 10.0, 1}));
        pass(0.1);
    }
    EXPECT_LE(steps, 10);
    EXPECT_GE(steps, 9);
}

TEST_F(LineGraphItem, StartsFromItsOldLineWhenTheHistoryGrows) {
    showWindow();
    graph->setProperty("data", values({0, 1, 0, 0.5, 1}));
    EXPECT_EQ(graph->animatedData(), (QList<double>{0, 0.5, 1, 0.5, 0}));
}

} // namespace
} // namespace orvelle
