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

/// Makes empty windows and records for what.
class RecordedViews final : public Views {
public:
    explicit RecordedViews(QStringList& calls)
        : m_calls(calls) {}
    [[nodiscard]] std::unique_ptr<QWindow> makePanel(QStringView key, double cornerRadius) override {
        m_calls.append(QStringLiteral("%1 panel %2").arg(key).arg(cornerRadius));
        return std::make_unique<QWindow>();
    }
    [[nodiscard]] std::unique_ptr<QWindow> makeSettings() override {
        m_calls.append(QStringLiteral("settings"));
        return std::make_unique<QWindow>();
    }

private:
    QStringList& m_calls;
};

class RecordedSettingsWindow final : public SettingsWindow {
public:
    RecordedSettingsWindow(std::unique_ptr<QWindow> content, QStringList& calls)
        : m_content(std::move(content))
        , m_calls(calls) {}
    void bringForward() override { m_calls.append(QStringLiteral("forward")); }

private:
    std::unique_ptr<QWindow> m_content;
    QStringList& m_calls;
};

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
    /// What the delegate asked of the views and of the settings window, in order.
    QStringList windowCalls;
    std::optional<ViewContext> context;
    bool canLoadViews = true;
    AppDelegate delegate{monitor,
                         settings,
                         themes,
                         {bar,
                          [this](const ViewContext& given) -> std::unique_ptr<Views> {
                              windowCalls.append(QStringLiteral("load"));
                              context.emplace(given);
                              return canLoadViews ? std::make_unique<RecordedViews>(windowCalls) : nullptr;
                          },
                          [this](std::unique_ptr<QWindow> content) {
                              return std::make_unique<RecordedSettingsWindow>(std::move(content),
                                                                              windowCalls);
                          }}};
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

TEST_F(AppDelegateTest, OpensAPanelAndNoMenuOnALeftClick) {
    delegate.applicationDidFinishLaunching();
    bar.calls.clear();
    EXPECT_TRUE(windowCalls.isEmpty()); // the windows are not loaded before they are needed
    bar.items.front()->click(ClickButton::left);
    EXPECT_EQ(bar.calls, QStringList{QStringLiteral("open cpu")});
    EXPECT_EQ(windowCalls, (QStringList{QStringLiteral("load"), QStringLiteral("cpu panel 7")}));
    EXPECT_TRUE(delegate.isPopoverShown(QStringLiteral("cpu")));
    EXPECT_FALSE(delegate.isPopoverShown(QStringLiteral("memory")));
}

TEST_F(AppDelegateTest, ClosesAPanelOnTheSecondClick) {
    delegate.applicationDidFinishLaunching();
    bar.calls.clear();
    for (int count = 0; count < 3; ++count)
        bar.items.front()->click(ClickButton::left);
    EXPECT_EQ(bar.calls, (QStringList{QStringLiteral("open cpu"), QStringLiteral("close cpu"),
                                      QStringLiteral("open cpu")}));
    EXPECT_EQ(windowCalls.size(), 2); // the content is made once
}

TEST_F(AppDelegateTest, ShowsOnePanelAtATime) {
    delegate.applicationDidFinishLaunching();
    bar.calls.clear();
    bar.items[0]->click(ClickButton::left);
    bar.items[1]->click(ClickButton::left);
    EXPECT_EQ(bar.calls, (QStringList{QStringLiteral("open cpu"), QStringLiteral("close cpu"),
                                      QStringLiteral("open memory")}));
    EXPECT_EQ(windowCalls.filter(QStringLiteral("load")).size(), 1);
}

TEST_F(AppDelegateTest, ClosesThePanelBeforeTheMenuOpens) {
    delegate.applicationDidFinishLaunching();
    bar.items[0]->click(ClickButton::left);
    bar.calls.clear();
    bar.items[0]->click(ClickButton::right);
    EXPECT_EQ(bar.calls, (QStringList{QStringLiteral("close cpu"), QStringLiteral("menu cpu")}));
    EXPECT_FALSE(delegate.isPopoverShown(QStringLiteral("cpu")));
}

TEST_F(AppDelegateTest, ClosesTheMenuBeforeAPanelOpens) {
    delegate.applicationDidFinishLaunching();
    bar.items[0]->click(ClickButton::right);
    bar.calls.clear();
    bar.items[0]->click(ClickButton::left);
    EXPECT_EQ(bar.calls, (QStringList{QStringLiteral("close menu"), QStringLiteral("open cpu")}));
}

TEST_F(AppDelegateTest, MakesThePanelsAnewWithTheItems) {
    delegate.applicationDidFinishLaunching();
    bar.items[0]->click(ClickButton::left);
    settings.setShowMemory(!settings.showMemory());
    delegate.checkVisibility();
    EXPECT_FALSE(delegate.isPopoverShown(QStringLiteral("cpu")));
    windowCalls.clear();
    bar.items[0]->click(ClickButton::left);
    EXPECT_EQ(windowCalls, QStringList{QStringLiteral("cpu panel 7")});
}

TEST_F(AppDelegateTest, IgnoresAClickOnAnItemThatItDoesNotKnow) {
    delegate.applicationDidFinishLaunching();
    const RecordingStatusBar::Item stranger(QStringLiteral("clock"), 40);
    bar.calls.clear();
    delegate.togglePopover(stranger);
    EXPECT_TRUE(bar.calls.isEmpty());
}

TEST_F(AppDelegateTest, GoesOnWithoutWindowsThatCannotBeLoaded) {
    canLoadViews = false;
    delegate.applicationDidFinishLaunching();
    bar.items[0]->click(ClickButton::left);
    delegate.openSettings();
    EXPECT_FALSE(windowCalls.contains(QStringLiteral("forward")));
    canLoadViews = true;
    delegate.openSettings();
    EXPECT_EQ(windowCalls.last(), QStringLiteral("forward"));
}

TEST_F(AppDelegateTest, OpensOneSettingsWindowHoweverItIsAskedFor) {
    delegate.applicationDidFinishLaunching();
    delegate.openSettings();
    EXPECT_EQ(windowCalls,
              (QStringList{QStringLiteral("load"), QStringLiteral("settings"), QStringLiteral("forward")}));
    windowCalls.clear();
    context->openSettings(); // the button in a panel
    bar.items.front()->click(ClickButton::right);
    bar.menuEntries.front().action();
    EXPECT_EQ(windowCalls, (QStringList{QStringLiteral("forward"), QStringLiteral("forward")}));
}

TEST_F(AppDelegateTest, ASecondStartMovesTheKeyboardToTheItemsOrOpensTheSettingsWhenThereAreNone) {
    delegate.applicationDidFinishLaunching();
    delegate.applicationShouldHandleReopen();
    EXPECT_TRUE(windowCalls.isEmpty());
    EXPECT_EQ(bar.calls.last(), QStringLiteral("keyboard"));
    showAll(false);
    bar.calls.clear();
    delegate.applicationShouldHandleReopen();
    EXPECT_FALSE(bar.calls.contains(QStringLiteral("keyboard")));
    EXPECT_EQ(windowCalls.last(), QStringLiteral("forward"));
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
    ASSERT_EQ(bar.menuEntries.size(), 3U);
    EXPECT_EQ(bar.menuEntries.back().title, QStringLiteral("Quit Orvelle"));
    QTimer::singleShot(0, &bar, bar.menuEntries.back().action);
    EXPECT_EQ(QCoreApplication::exec(), 0);
}

} // namespace
} // namespace orvelle
