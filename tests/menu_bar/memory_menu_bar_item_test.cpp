#include "core/memory_monitor.h"
#include "item_fixture.h"
#include "menu_bar/memory_menu_bar_item.h"
#include "menu_bar/menu_bar_item.h"
#include "platform/replay/fake_sources.h"

namespace orvelle {
namespace {

constexpr double memoryLength = 70;

class MemoryMenuBarItemTest : public ItemFixture {
protected:
    /// Adds a sample with `usedPages` of `totalPages` in use and no cache.
    void use(std::uint64_t usedPages, std::uint64_t totalPages = 100) {
        constexpr std::uint64_t pageSize = 4096;
        source.reading = MemoryReading{.pageSize = pageSize,
                                       .physicalMemory = static_cast<std::int64_t>(totalPages * pageSize),
                                       .wiredPages = usedPages};
        monitor.update();
    }
    [[nodiscard]] QImage pictureIn(MenuBarDisplayStyle style) {
        settings.setMenuBarDisplayStyle(style);
        return picture(item, memoryLength);
    }
    [[nodiscard]] SceneNode icon() const { return iconNode(QStringLiteral("memorychip"), color()); }
    [[nodiscard]] QImage pictureOfDots(qsizetype lit) const {
        return picture(row({icon(), dotsNode(meterColors(color(), lit, 5, 0.2))}, 3), memoryLength);
    }
    [[nodiscard]] QColor color() const { return themes.memoryColor(settings); }

    FakeMemorySource source;
    MemoryMonitor monitor{source};
    MemoryMenuBarItem item{monitor, settings, themes};
};

TEST_F(MemoryMenuBarItemTest, MiniBarsShowsIconBarAndSmallText) {
    use(42);
    const SceneNode expected =
        row({icon(), levelBarNode({28, 8}, 3, 0.42, color(), true), valueNode(QStringLiteral("42%"), 10)}, 3);
    EXPECT_EQ(pictureIn(MenuBarDisplayStyle::miniBars), picture(expected, memoryLength));
}

TEST_F(MemoryMenuBarItemTest, HasAnEasingLevelOnlyInTheStyleOfBars) {
    use(42);
    EXPECT_EQ(levelsOf(item.body().body),
              QList<Level>({{.look = {0.42, color()}, .fullLength = 28, .eases = true}}));
    for (const MenuBarDisplayStyle style : allDisplayStyles) {
        settings.setMenuBarDisplayStyle(style);
        EXPECT_EQ(levelsOf(item.body().body).size(), style == MenuBarDisplayStyle::miniBars ? 1 : 0);
    }
}

TEST_F(MemoryMenuBarItemTest, TextOnlyShowsTheUsedShareAlone) {
    use(7);
    EXPECT_EQ(pictureIn(MenuBarDisplayStyle::textOnly),
              picture(valueNode(QStringLiteral("7.0%")), memoryLength));
}

TEST_F(MemoryMenuBarItemTest, IconAndTextShowsTheIconBesideTheShare) {
    use(100);
    EXPECT_EQ(pictureIn(MenuBarDisplayStyle::iconAndText),
              picture(row({icon(), valueNode(QStringLiteral("100%"))}, 3), memoryLength));
}

TEST_F(MemoryMenuBarItemTest, TheSparklineShowsThePressureHistory) {
    for (const std::uint64_t used : {20U, 60U, 30U})
        use(used);
    const SceneNode history = historyNode({0.2, 0.6, 0.3}, color(), 1.0, {28, 12});
    EXPECT_EQ(pictureIn(MenuBarDisplayStyle::sparkline), picture(row({icon(), history}, 3), memoryLength));
}

TEST_F(MemoryMenuBarItemTest, NinetyNinePercentLightsFourOfFiveDots) {
    use(99);
    EXPECT_EQ(pictureIn(MenuBarDisplayStyle::dotIndicator), pictureOfDots(4));
    use(100);
    EXPECT_EQ(pictureIn(MenuBarDisplayStyle::dotIndicator), pictureOfDots(5));
    EXPECT_NE(pictureOfDots(4), pictureOfDots(5));
}

TEST_F(MemoryMenuBarItemTest, AnUnknownTotalCountsAsNothingUsed) {
    use(0, 0);
    EXPECT_EQ(pictureIn(MenuBarDisplayStyle::textOnly),
              picture(valueNode(QStringLiteral("0.0%")), memoryLength));
    EXPECT_EQ(pictureIn(MenuBarDisplayStyle::dotIndicator), pictureOfDots(0));
    EXPECT_EQ(item.body().accessibleText, QStringLiteral("Memory 0.0%"));
}

TEST_F(MemoryMenuBarItemTest, StaysInItsPlaceInEveryStyle) {
    use(100);
    use(80);
    use(100);
    expectItStaysInItsPlace(item, memoryLength);
}

TEST_F(MemoryMenuBarItemTest, DescribesTheShareInWords) {
    use(45);
    EXPECT_EQ(item.body().accessibleText, QStringLiteral("Memory 45%"));
}

} // namespace
} // namespace orvelle
