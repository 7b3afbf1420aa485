#include "app/app_delegate_fixture.h"
#include "app/throttle.h"
#include "support/early_timer.h"
#include "theme/fonts.h"

#include <QElapsedTimer>

namespace orvelle {
namespace {

static_assert(AppDelegate::redrawInterval == std::chrono::seconds(2));

class AppDelegateRedrawTest : public AppDelegateTest {
protected:
    /// Runs a cycle with this share of the memory in use, in percent.
    void sample(std::uint64_t usedPercent) {
        machine.memory->reading =
            MemoryReading{.pageSize = 4096, .physicalMemory = 409600, .wiredPages = usedPercent};
        monitor.updateCycle();
    }
    [[nodiscard]] RecordingStatusBar::Item& item(const QString& key) const {
        return *bar.items[static_cast<std::size_t>(bar.identifiers().indexOf(key))];
    }
    [[nodiscard]] QString memoryText() const { return item(QStringLiteral("memory")).accessibleText; }
    /// The timer that releases a held redraw; null if no redraw is held.
    [[nodiscard]] QTimer* heldRedraw() const {
        const auto* throttle = delegate.findChild<Throttle*>();
        return throttle != nullptr && throttle->isHolding() ? throttle->findChild<QTimer*>() : nullptr;
    }
};

TEST_F(AppDelegateRedrawTest, ShowsEachSample) {
    delegate.applicationDidFinishLaunching();
    EXPECT_EQ(memoryText(), QStringLiteral("Memory 0.0%"));
    sample(42);
    EXPECT_EQ(memoryText(), QStringLiteral("Memory 42%"));
}

TEST_F(AppDelegateRedrawTest, ShowsEachSampleInTheIconWhereItemsHaveOne) {
    bar.hasIcons = true;
    delegate.applicationDidFinishLaunching();
    sample(42);
    EXPECT_EQ(item(QStringLiteral("memory")).icon.label, QStringLiteral("42%"));
    EXPECT_TRUE(item(QStringLiteral("memory")).icon.paint);
}

TEST_F(AppDelegateRedrawTest, MakesNoIconsForADesktopThatShowsNone) {
    delegate.applicationDidFinishLaunching();
    sample(42);
    EXPECT_FALSE(item(QStringLiteral("memory")).icon.paint);
}

TEST_F(AppDelegateRedrawTest, RedrawsAtMostOnceInTwoSeconds) {
    QElapsedTimer clock;
    delegate.applicationDidFinishLaunching();
    clock.start();
    sample(10);
    sample(20);
    sample(30);
    EXPECT_EQ(memoryText(), QStringLiteral("Memory 10%"));
    QTimer* held = heldRedraw();
    ASSERT_NE(held, nullptr);
    EXPECT_GE(held->remainingTime() + clock.elapsed(), AppDelegate::redrawInterval.count());
    EXPECT_LE(held->remainingTime(), AppDelegate::redrawInterval.count());
    endNow(*held);
    EXPECT_EQ(memoryText(), QStringLiteral("Memory 30%")) << "the newest values";
}

TEST_F(AppDelegateRedrawTest, RepaintsOnlyTheItemsThatLookDifferent) {
    delegate.applicationDidFinishLaunching();
    const int memoryBefore = item(QStringLiteral("memory")).repaintCount;
    const int networkBefore = item(QStringLiteral("network")).repaintCount;
    sample(42);
    EXPECT_GT(item(QStringLiteral("memory")).repaintCount, memoryBefore);
    settings.setUseFahrenheit(true);
    settings.setCustomMemoryColorHex(QStringLiteral("#102030"));
    EXPECT_EQ(item(QStringLiteral("network")).repaintCount, networkBefore);
}

TEST_F(AppDelegateRedrawTest, RedrawsAtOnceWhenASettingChanges) {
    delegate.applicationDidFinishLaunching();
    monitor.updateCycle();
    const int before = bar.items.front()->repaintCount;
    settings.setMenuBarDisplayStyle(MenuBarDisplayStyle::dotIndicator);
    EXPECT_EQ(bar.items.front()->repaintCount, before + 1);
}

TEST_F(AppDelegateRedrawTest, RedrawsAtOnceWhenTheDesktopChangesItsFont) {
    delegate.applicationDidFinishLaunching();
    monitor.updateCycle();
    settings.setMenuBarDisplayStyle(MenuBarDisplayStyle::textOnly);
    const int before = bar.items.front()->repaintCount;
    setDesktopFontNames({.proportional = {}, .monospaced = QStringLiteral("DejaVu Serif 11")});
    EXPECT_EQ(bar.items.front()->repaintCount, before + 1);
    setDesktopFontNames({});
    EXPECT_EQ(bar.items.front()->repaintCount, before + 2);
}

TEST_F(AppDelegateRedrawTest, HasOneSubscriptionAfterManyRebuilds) {
    delegate.applicationDidFinishLaunching();
    for (int count = 0; count < 6; ++count) {
        settings.setShowDisk(!settings.showDisk());
        delegate.checkVisibility();
    }
    EXPECT_EQ(delegate.findChildren<Throttle*>().size(), 1);
    const int before = item(QStringLiteral("memory")).repaintCount;
    sample(42);
    EXPECT_EQ(item(QStringLiteral("memory")).repaintCount, before + 1);
}

TEST_F(AppDelegateRedrawTest, DropsAHeldRedrawWhenTheItemsAreRebuilt) {
    delegate.applicationDidFinishLaunching();
    sample(10);
    sample(20);
    EXPECT_NE(heldRedraw(), nullptr);
    settings.setShowDisk(!settings.showDisk());
    delegate.checkVisibility();
    EXPECT_EQ(heldRedraw(), nullptr);
    EXPECT_EQ(memoryText(), QStringLiteral("Memory 20%"));
}

} // namespace
} // namespace orvelle
