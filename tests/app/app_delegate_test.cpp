#include "app/app_delegate.h"
#include "app/recording_status_bar.h"
#include "core/system_monitor.h"
#include "platform/host.h"
#include "settings/settings_store.h"
#include "settings/theme_manager.h"

#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

namespace orvelle {
namespace {

static_assert(AppDelegate::redrawInterval == std::chrono::seconds(2));
static_assert(AppDelegate::visibilityInterval == std::chrono::seconds(3));

class AppDelegateTest : public ::testing::Test {
protected:
    void showAll(bool shown) {
        settings.setShowCPU(shown);
        settings.setShowMemory(shown);
        settings.setShowNetwork(shown);
        settings.setShowDisk(shown);
        settings.setShowBattery(shown);
        settings.setShowSensors(shown);
    }
    static QStringList everyKey() {
        QStringList keys;
        for (const Module& module : modules())
            keys.append(module.key);
        return keys;
    }

    QTemporaryDir directory;
    SettingsStore settings{directory.filePath(QStringLiteral("settings.ini"))};
    ThemeManager themes{settings};
    SystemMonitor monitor{makeHostSources(), settings};
    RecordingStatusBar bar;
    AppDelegate delegate{monitor, settings, themes, bar};
};

TEST_F(AppDelegateTest, KnowsTheModulesInTheirFixedOrderAndLengths) {
    const QList<std::pair<QString, double>> expected{
        {QStringLiteral("cpu"), 60},  {QStringLiteral("memory"), 70},  {QStringLiteral("network"), 90},
        {QStringLiteral("disk"), 45}, {QStringLiteral("battery"), 65}, {QStringLiteral("sensor"), 50}};
    QList<std::pair<QString, double>> known;
    for (const Module& module : modules())
        known.append({module.key, module.length});
    EXPECT_EQ(known, expected);
}

TEST_F(AppDelegateTest, CreatesAnItemForEveryShownModuleInTableOrder) {
    showAll(true);
    delegate.applicationDidFinishLaunching();
    EXPECT_EQ(bar.identifiers(), everyKey());
    for (std::size_t index = 0; index < bar.items.size(); ++index) {
        EXPECT_EQ(bar.items[index]->length(), modules()[index].length);
        EXPECT_NE(bar.items[index]->view, nullptr);
    }
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

TEST_F(AppDelegateTest, NoticesAVisibilityChangeByItself) {
    delegate.applicationDidFinishLaunching();
    settings.setShowMemory(false);
    EXPECT_TRUE(bar.identifiers().contains(QStringLiteral("memory")));
    EXPECT_TRUE(
        QTest::qWaitFor([&] { return !bar.identifiers().contains(QStringLiteral("memory")); }, 20000));
}

TEST_F(AppDelegateTest, RedrawsAnItemOnceForEachAnnouncement) {
    delegate.applicationDidFinishLaunching();
    EXPECT_EQ(bar.items.front()->viewCount, 1);
    monitor.updateCycle();
    EXPECT_EQ(bar.items.front()->viewCount, 2);
}

TEST_F(AppDelegateTest, RedrawsAtMostOnceInTwoSeconds) {
    QElapsedTimer clock;
    delegate.applicationDidFinishLaunching();
    monitor.stop(); // only the announcements below
    clock.start();
    monitor.updateCycle();
    monitor.updateCycle();
    monitor.updateCycle();
    EXPECT_EQ(bar.items.front()->viewCount, 2);
    ASSERT_TRUE(QTest::qWaitFor([&] { return bar.items.front()->viewCount > 2; }, 20000));
    EXPECT_GE(clock.elapsed(), AppDelegate::redrawInterval.count());
    EXPECT_EQ(bar.items.front()->viewCount, 3);
}

TEST_F(AppDelegateTest, RedrawsAtOnceWhenASettingChanges) {
    delegate.applicationDidFinishLaunching();
    monitor.updateCycle();
    const int before = bar.items.front()->viewCount;
    settings.setMenuBarDisplayStyle(MenuBarDisplayStyle::dotIndicator);
    EXPECT_EQ(bar.items.front()->viewCount, before + 1);
}

TEST_F(AppDelegateTest, HasOneSubscriptionPerItemAfterManyRebuilds) {
    delegate.applicationDidFinishLaunching();
    for (int count = 0; count < 5; ++count) {
        settings.setShowMemory(!settings.showMemory());
        delegate.checkVisibility();
    }
    const int before = bar.items.front()->viewCount;
    monitor.updateCycle();
    EXPECT_EQ(bar.items.front()->viewCount, before + 1);
}

TEST_F(AppDelegateTest, DropsAHeldRedrawWhenTheItemsAreRebuilt) {
    delegate.applicationDidFinishLaunching();
    monitor.stop();
    monitor.updateCycle();
    monitor.updateCycle(); // held
    settings.setShowMemory(!settings.showMemory());
    delegate.checkVisibility();
    const int before = bar.items.front()->viewCount;
    QTest::qWait(static_cast<int>(AppDelegate::redrawInterval.count()) + 200);
    EXPECT_EQ(bar.items.front()->viewCount, before);
}

TEST_F(AppDelegateTest, OpensTheMenuUnderTheItemThatIsClickedWithTheRightButton) {
    delegate.applicationDidFinishLaunching();
    bar.calls.clear();
    bar.items.front()->click(ClickButton::right);
    bar.items.back()->click(ClickButton::right);
    EXPECT_EQ(bar.calls, (QStringList{QStringLiteral("menu cpu"),
                                      QStringLiteral("menu ") + bar.items.back()->identifier()}));
}

TEST_F(AppDelegateTest, NeverOpensTheMenuOnALeftClick) {
    delegate.applicationDidFinishLaunching();
    bar.calls.clear();
    bar.items.front()->click(ClickButton::left);
    EXPECT_TRUE(bar.calls.isEmpty());
}

TEST_F(AppDelegateTest, ClosesTheMenuBeforeItsItemIsRemoved) {
    delegate.applicationDidFinishLaunching();
    bar.items.front()->click(ClickButton::right);
    bar.calls.clear();
    settings.setShowMemory(!settings.showMemory());
    delegate.checkVisibility();
    EXPECT_EQ(bar.calls.value(0), QStringLiteral("close menu"));
}

TEST_F(AppDelegateTest, EndsTheProgramFromTheMenu) {
    delegate.applicationDidFinishLaunching();
    bar.items.front()->click(ClickButton::right);
    ASSERT_EQ(bar.menuEntries.size(), 1U);
    EXPECT_EQ(bar.menuEntries.front().title, QStringLiteral("Quit Orvelle"));
    QTimer::singleShot(0, &bar, bar.menuEntries.front().action);
    EXPECT_EQ(QCoreApplication::exec(), 0);
}

} // namespace
} // namespace orvelle
