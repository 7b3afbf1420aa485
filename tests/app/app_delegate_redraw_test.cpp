#include "app/app_delegate_fixture.h"

namespace orvelle {
namespace {

static_assert(AppDelegate::redrawInterval == std::chrono::seconds(2));

using AppDelegateRedrawTest = AppDelegateTest;

TEST_F(AppDelegateRedrawTest, RedrawsAnItemOnceForEachAnnouncement) {
    delegate.applicationDidFinishLaunching();
    EXPECT_EQ(bar.items.front()->viewCount, 1);
    monitor.updateCycle();
    EXPECT_EQ(bar.items.front()->viewCount, 2);
}

TEST_F(AppDelegateRedrawTest, RedrawsAtMostOnceInTwoSeconds) {
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

TEST_F(AppDelegateRedrawTest, RedrawsAtOnceWhenASettingChanges) {
    delegate.applicationDidFinishLaunching();
    monitor.updateCycle();
    const int before = bar.items.front()->viewCount;
    settings.setMenuBarDisplayStyle(MenuBarDisplayStyle::dotIndicator);
    EXPECT_EQ(bar.items.front()->viewCount, before + 1);
}

TEST_F(AppDelegateRedrawTest, HasOneSubscriptionPerItemAfterManyRebuilds) {
    delegate.applicationDidFinishLaunching();
    for (int count = 0; count < 5; ++count) {
        settings.setShowMemory(!settings.showMemory());
        delegate.checkVisibility();
    }
    const int before = bar.items.front()->viewCount;
    monitor.updateCycle();
    EXPECT_EQ(bar.items.front()->viewCount, before + 1);
}

TEST_F(AppDelegateRedrawTest, DropsAHeldRedrawWhenTheItemsAreRebuilt) {
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

} // namespace
} // namespace orvelle
