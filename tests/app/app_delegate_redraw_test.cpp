#include "app/app_delegate_fixture.h"
#include "app/throttle.h"
#include "look/fonts.h"
#include "support/early_timer.h"

namespace orvelle {
namespace {

static_assert(AppDelegate::redrawInterval == std::chrono::seconds(2));

class AppDelegateRedrawTest : public AppDelegateTest {
protected:
    /// The redraws of items that are held, each as the timer that lets it go.
    [[nodiscard]] QList<QTimer*> heldRedraws() const {
        QList<QTimer*> held;
        for (const Throttle* throttle : delegate.findChildren<Throttle*>()) {
            if (throttle->isHolding())
                held.append(throttle->findChild<QTimer*>());
        }
        return held;
    }
};

TEST_F(AppDelegateRedrawTest, RedrawsAnItemOnceForEachAnnouncement) {
    delegate.applicationDidFinishLaunching();
    EXPECT_EQ(bar.items.front()->viewCount, 1);
    monitor.updateCycle();
    EXPECT_EQ(bar.items.front()->viewCount, 2);
}

TEST_F(AppDelegateRedrawTest, RedrawsAtMostOnceInTwoSeconds) {
    QElapsedTimer clock;
    delegate.applicationDidFinishLaunching();
    clock.start();
    monitor.updateCycle();
    monitor.updateCycle();
    monitor.updateCycle();
    EXPECT_EQ(bar.items.front()->viewCount, 2);
    ASSERT_EQ(heldRedraws().size(), delegate.statusItems().size());
    QTimer& held = *heldRedraws().front();
    EXPECT_GE(held.remainingTime() + clock.elapsed(), AppDelegate::redrawInterval.count());
    EXPECT_LE(held.remainingTime(), AppDelegate::redrawInterval.count());
    endNow(held);
    EXPECT_EQ(bar.items.front()->viewCount, 3);
}

TEST_F(AppDelegateRedrawTest, RedrawsAtOnceWhenASettingChanges) {
    delegate.applicationDidFinishLaunching();
    monitor.updateCycle();
    const int before = bar.items.front()->viewCount;
    settings.setMenuBarDisplayStyle(MenuBarDisplayStyle::dotIndicator);
    EXPECT_EQ(bar.items.front()->viewCount, before + 1);
}

TEST_F(AppDelegateRedrawTest, RedrawsAtOnceWhenTheDesktopChangesItsFont) {
    delegate.applicationDidFinishLaunching();
    monitor.updateCycle();
    const int before = bar.items.front()->viewCount;
    setDesktopFontNames({.proportional = {}, .monospaced = QStringLiteral("DejaVu Serif 11")});
    EXPECT_EQ(bar.items.front()->viewCount, before + 1);
    settings.setMenuBarDisplayStyle(MenuBarDisplayStyle::textOnly);
    const std::string inSerif = bar.items.front()->view->picture({}).key;
    setDesktopFontNames({});
    EXPECT_NE(bar.items.front()->view->picture({}).key, inSerif) << "it looks different";
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
    monitor.updateCycle();
    monitor.updateCycle();
    EXPECT_FALSE(heldRedraws().isEmpty());
    settings.setShowMemory(!settings.showMemory());
    delegate.checkVisibility();
    EXPECT_TRUE(heldRedraws().isEmpty());
}

} // namespace
} // namespace orvelle
