#include "app/app_delegate_fixture.h"
#include "support/early_timer.h"

namespace orvelle {
namespace {

static_assert(AppDelegate::visibilityInterval == std::chrono::seconds(3));

TEST_F(AppDelegateTest, KnowsTheModulesInTheirFixedOrderAndLengths) {
    const QList<std::pair<QString, double>> expected{
        {QStringLiteral("cpu"), 60},  {QStringLiteral("memory"), 70},  {QStringLiteral("network"), 90},
        {QStringLiteral("disk"), 45}, {QStringLiteral("battery"), 65}, {QStringLiteral("sensor"), 50}};
    QList<std::pair<QString, double>> known;
    for (const ModuleInfo& module : moduleTable)
        known.append({module.key, module.width});
    EXPECT_EQ(known, expected);
}

TEST_F(AppDelegateTest, CreatesAnItemForEveryShownModuleInTableOrder) {
    showAll(true);
    delegate.applicationDidFinishLaunching();
    EXPECT_EQ(bar.identifiers(), everyKey());
    for (std::size_t index = 0; index < bar.items.size(); ++index) {
        EXPECT_EQ(bar.items[index]->length(), moduleTable[index].width);
        EXPECT_GT(bar.items[index]->repaintCount, 0);
    }
}

TEST_F(AppDelegateTest, ShowsTheItemsInTableOrderWhereNewOnesStandOnTheLeft) {
    bar.addsOnTheLeft = true;
    showAll(true);
    delegate.applicationDidFinishLaunching();
    EXPECT_EQ(bar.identifiers(), everyKey());
}

TEST_F(AppDelegateTest, ShowsNoItemWhenEveryModuleIsHidden) {
    showAll(false);
    delegate.applicationDidFinishLaunching();
    EXPECT_TRUE(bar.items.empty());
    EXPECT_TRUE(delegate.statusItems().isEmpty());
}

TEST_F(AppDelegateTest, SamplesBeforeItCreatesItems) {
    int itemsAtFirstSample = -1;
    QObject::connect(&monitor, &SystemMonitor::changed, &monitor, [&] {
        if (itemsAtFirstSample < 0)
            itemsAtFirstSample = static_cast<int>(bar.items.size());
    });
    delegate.applicationDidFinishLaunching();
    EXPECT_EQ(itemsAtFirstSample, 0);
    EXPECT_EQ(monitor.updateCycleCount(), 1);
    EXPECT_TRUE(monitor.activeInterval());
    EXPECT_TRUE(delegate.isRefreshing());
}

TEST_F(AppDelegateTest, StopsBothTimersWhenTheProgramEnds) {
    delegate.applicationDidFinishLaunching();
    delegate.applicationWillTerminate();
    EXPECT_FALSE(monitor.activeInterval());
    EXPECT_FALSE(delegate.isRefreshing());
}

TEST_F(AppDelegateTest, AChangedIntervalTakesEffectAtOnceWhileTheProgramRuns) {
    delegate.applicationDidFinishLaunching();
    settings.setUpdateInterval(10);
    EXPECT_EQ(monitor.activeInterval(), 10);
    EXPECT_EQ(monitor.updateCycleCount(), 2);
    delegate.applicationWillTerminate();
    settings.setUpdateInterval(5);
    EXPECT_FALSE(monitor.activeInterval());
}

TEST_F(AppDelegateTest, KeepsTheItemsWhileNoVisibilityChanges) {
    delegate.applicationDidFinishLaunching();
    bar.calls.clear();
    settings.setMenuBarDisplayStyle(MenuBarDisplayStyle::textOnly);
    delegate.checkVisibility();
    EXPECT_TRUE(bar.calls.isEmpty());
}

TEST_F(AppDelegateTest, RemovesAllItemsAndRecreatesTheShownOnesInTableOrder) {
    showAll(true);
    settings.setShowCPU(false);
    delegate.applicationDidFinishLaunching();
    bar.calls.clear();
    settings.setShowCPU(true);
    delegate.checkVisibility();
    EXPECT_EQ(bar.identifiers(), everyKey());
    EXPECT_EQ(delegate.statusItems().size(), everyKey().size());
    ASSERT_FALSE(bar.calls.isEmpty());
    EXPECT_EQ(bar.calls.filter(QStringLiteral("remove")).size(), everyKey().size() - 1);
    EXPECT_EQ(bar.calls.indexOf(QStringLiteral("add cpu")), everyKey().size() - 1);
}

TEST_F(AppDelegateTest, SwitchingTheLastModuleOffLeavesNoItem) {
    showAll(false);
    settings.setShowMemory(true);
    delegate.applicationDidFinishLaunching();
    EXPECT_EQ(bar.identifiers(), QStringList{QStringLiteral("memory")});
    settings.setShowMemory(false);
    delegate.checkVisibility();
    EXPECT_TRUE(bar.items.empty());
    EXPECT_TRUE(delegate.statusItems().isEmpty());
}

class AppDelegateVisibilityTest : public AppDelegateTest {
protected:
    [[nodiscard]] QTimer* refreshTimer() const {
        return delegate.findChild<QTimer*>({}, Qt::FindDirectChildrenOnly);
    }
    [[nodiscard]] bool showsMemory() const { return bar.identifiers().contains(QStringLiteral("memory")); }
};

TEST_F(AppDelegateVisibilityTest, NoticesAChangeWithTheNextSample) {
    delegate.applicationDidFinishLaunching();
    EXPECT_FALSE(refreshTimer()->isActive()) << "one tick does for both";
    settings.setShowMemory(false);
    EXPECT_TRUE(showsMemory());
    monitor.updateCycle();
    EXPECT_FALSE(showsMemory());
}

TEST_F(AppDelegateVisibilityTest, NoticesAChangeByItselfWhenSamplesAreRare) {
    delegate.applicationDidFinishLaunching();
    settings.setUpdateInterval(10);
    settings.setShowMemory(false);
    EXPECT_TRUE(showsMemory());
    EXPECT_EQ(refreshTimer()->intervalAsDuration(), AppDelegate::visibilityInterval);
    EXPECT_EQ(refreshTimer()->timerType(), Qt::PreciseTimer);
    endNow(*refreshTimer());
    EXPECT_FALSE(showsMemory());
    settings.setShowMemory(true);
    endNow(*refreshTimer());
    EXPECT_TRUE(showsMemory()) << "again and again";
    settings.setUpdateInterval(1);
    EXPECT_FALSE(refreshTimer()->isActive());
}

} // namespace
} // namespace orvelle
