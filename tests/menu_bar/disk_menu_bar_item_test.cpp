#include "charts/sparkline_view.h"
#include "core/disk_monitor.h"
#include "item_fixture.h"
#include "menu_bar/disk_menu_bar_item.h"
#include "menu_bar/menu_bar_item.h"
#include "platform/replay/fake_sources.h"
#include "theme/colors.h"

namespace orvelle {
namespace {

using std::chrono::seconds;

constexpr double diskLength = 45;

class DiskMenuBarItemTest : public ItemFixture {
protected:
    void mount(std::int64_t totalBytes, std::int64_t freeBytes) {
        source.volumes = std::vector{
            MountedVolume{.path = "/", .isLocal = true, .totalBytes = totalBytes, .freeBytes = freeBytes},
            MountedVolume{.path = "/data", .isLocal = true, .totalBytes = 100, .freeBytes = 1}};
        monitor.updateVolumes();
    }
    /// Adds a second in which this many bytes were read and written.
    void transfer(std::uint64_t bytesRead, std::uint64_t bytesWritten) {
        counters.bytesRead += bytesRead;
        counters.bytesWritten += bytesWritten;
        source.counters = std::vector{counters};
        clock.advance(seconds(1));
        monitor.updateIO();
    }
    [[nodiscard]] QImage pictureIn(MenuBarDisplayStyle style) {
        settings.setMenuBarDisplayStyle(style);
        return picture(item, diskLength);
    }
    [[nodiscard]] SceneNode icon() const { return iconNode(QStringLiteral("internaldrive"), color()); }
    [[nodiscard]] QColor color() const { return themes.diskColor(settings); }
    [[nodiscard]] const AppTheme& theme() const { return themes.currentTheme(); }
    [[nodiscard]] SceneNode arrows(double writeSpeed, double readSpeed) const {
        return row({symbolNode(QStringLiteral("arrow.up.circle.fill"), 6,
                               activityArrowColor(writeSpeed, theme().diskWriteColor)),
                    symbolNode(QStringLiteral("arrow.down.circle.fill"), 6,
                               activityArrowColor(readSpeed, theme().diskReadColor))},
                   1);
    }

    FakeDiskSource source;
    FakeClock clock;
    DiskCounters counters{.bytesRead = 1000, .bytesWritten = 1000};
    DiskMonitor monitor{source, clock.reader()};
    DiskMenuBarItem item{monitor, settings, themes};
};

TEST_F(DiskMenuBarItemTest, MiniBarsShowsActivityAboveTheBarOfTheFirstVolume) {
    mount(1000, 250);
    transfer(0, 0);
    transfer(4096, 100);
    const SceneNode bar = levelBarNode({20, 4}, 2, 0.75, color(), false);
    const SceneNode expected = row({icon(), column({arrows(100, 4096), bar}, 1, ColumnAlignment::center)}, 2);
    EXPECT_EQ(pictureIn(MenuBarDisplayStyle::miniBars), picture(expected, diskLength));
}

TEST_F(DiskMenuBarItemTest, TheBarIsLeftOutWithoutVolumes) {
    const SceneNode expected = row({icon(), arrows(0, 0)}, 2);
    EXPECT_EQ(pictureIn(MenuBarDisplayStyle::miniBars), picture(expected, diskLength));
}

TEST_F(DiskMenuBarItemTest, TextShowsTheUsedShareOfTheFirstVolume) {
    mount(1000, 250);
    const SceneNode text = valueNode(QStringLiteral("75%"));
    EXPECT_EQ(pictureIn(MenuBarDisplayStyle::textOnly), picture(text, diskLength));
    EXPECT_EQ(pictureIn(MenuBarDisplayStyle::iconAndText), picture(row({icon(), text}, 2), diskLength));
}

TEST_F(DiskMenuBarItemTest, NoTextIsShownWithoutVolumes) {
    EXPECT_TRUE(paintedRect(pictureIn(MenuBarDisplayStyle::textOnly)).isEmpty());
    EXPECT_EQ(pictureIn(MenuBarDisplayStyle::iconAndText), picture(icon(), diskLength));
}

TEST_F(DiskMenuBarItemTest, TheSparklineShowsBothHistories) {
    for (const std::uint64_t bytes : {0U, 5000U, 900U, 7000U})
        transfer(bytes, bytes / 3);
    const DualSparklineView expected{.topData = recentSamples(monitor.readHistory()),
                                     .bottomData = recentSamples(monitor.writeHistory()),
                                     .topColor = theme().diskReadColor,
                                     .bottomColor = theme().diskWriteColor,
                                     .width = 28,
                                     .height = 12};
    ASSERT_EQ(expected.topData, QList<double>({5000, 900, 7000}));
    EXPECT_EQ(pictureIn(MenuBarDisplayStyle::sparkline), picture(row({icon(), {expected}}, 2), diskLength));
}

TEST_F(DiskMenuBarItemTest, DotsShowReadingAndThenWriting) {
    transfer(0, 0);
    transfer(1024, 1025);
    const SceneNode dots = dotsNode(
        {activityDotColor(0, theme().diskReadColor), activityDotColor(9999, theme().diskWriteColor)});
    EXPECT_EQ(pictureIn(MenuBarDisplayStyle::dotIndicator), picture(row({icon(), dots}, 2), diskLength));
}

TEST_F(DiskMenuBarItemTest, StaysInItsPlaceInEveryStyle) {
    mount(1000, 0);
    for (const std::uint64_t bytes : {0U, 5000U, 900U, 7000U})
        transfer(bytes, bytes);
    expectItStaysInItsPlace(item, diskLength);
}

TEST_F(DiskMenuBarItemTest, DescribesUsageAndActivityInWords) {
    EXPECT_EQ(item.body().accessibleText, QStringLiteral("Disk, read 0 B/s, write 0 B/s"));
    mount(1000, 250);
    transfer(0, 0);
    transfer(2048, 100);
    EXPECT_EQ(item.body().accessibleText, QStringLiteral("Disk 75%, read 2.0 KB/s, write 100 B/s"));
}

TEST(ActivityArrow, LightsAbove1024BytesPerSecond) {
    const QColor directionColor(40, 80, 120);
    QColor idle = SystemColors::grey;
    idle.setAlphaF(0.4F);
    EXPECT_EQ(activityArrowColor(0, directionColor), idle);
    EXPECT_EQ(activityArrowColor(1024, directionColor), idle);
    EXPECT_EQ(activityArrowColor(1024.5, directionColor), directionColor);
}

} // namespace
} // namespace orvelle
