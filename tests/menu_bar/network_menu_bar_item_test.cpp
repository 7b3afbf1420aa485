#include "charts/sparkline_view.h"
#include "core/network_monitor.h"
#include "item_fixture.h"
#include "menu_bar/menu_bar_item.h"
#include "menu_bar/network_menu_bar_item.h"
#include "platform/replay/fake_sources.h"
#include "theme/colors.h"
#include "theme/fonts.h"

namespace orvelle {
namespace {

using std::chrono::seconds;

constexpr double networkLength = 90;

class NetworkMenuBarItemTest : public ItemFixture {
protected:
    /// Adds a second in which this many bytes were received and sent.
    void transfer(std::uint64_t bytesIn, std::uint64_t bytesOut) {
        entry.bytesIn += bytesIn;
        entry.bytesOut += bytesOut;
        source.entries = std::vector{entry};
        clock.advance(seconds(1));
        monitor.update();
    }
    [[nodiscard]] QImage pictureIn(MenuBarDisplayStyle style) {
        settings.setMenuBarDisplayStyle(style);
        return picture(item, networkLength);
    }
    [[nodiscard]] SceneNode icon() const {
        return iconNode(QStringLiteral("network"), themes.networkColor(settings));
    }
    [[nodiscard]] const AppTheme& theme() const { return themes.currentTheme(); }

    [[nodiscard]] static SceneNode rateRow(const QString& arrow, const QColor& color, const QString& rate) {
        return row({symbolNode(arrow, 6, withOpacity(color, 0.8)),
                    textNode(rate, monospacedSystemFont(8), LabelColor{0.8})},
                   1);
    }
    [[nodiscard]] SceneNode ratePair(const QString& up, const QString& down) const {
        return column({rateRow(QStringLiteral("arrow.up"), theme().networkUploadColor, up),
                       rateRow(QStringLiteral("arrow.down"), theme().networkDownloadColor, down)},
                      0, ColumnAlignment::trailing);
    }
    [[nodiscard]] SceneNode history(double width) const {
        return {DualSparklineView{.topData = recentSamples(monitor.downloadHistory()),
                                  .bottomData = recentSamples(monitor.uploadHistory()),
                                  .topColor = theme().networkDownloadColor,
                                  .bottomColor = theme().networkUploadColor,
                                  .width = width,
                                  .height = 14}};
    }

    FakeNetworkSource source;
    FakeClock clock;
    InterfaceEntry entry{.name = "en0", .isUp = true, .bytesIn = 1000, .bytesOut = 1000};
    NetworkMonitor monitor{source, clock.reader()};
    NetworkMenuBarItem item{monitor, settings, themes};
};

TEST_F(NetworkMenuBarItemTest, MiniBarsShowsTheRatePairBesideTheHistories) {
    transfer(0, 0);
    transfer(2048, 500);
    const SceneNode rates = ratePair(QStringLiteral("500B"), QStringLiteral("2.0K"));
    EXPECT_EQ(pictureIn(MenuBarDisplayStyle::miniBars), picture(row({rates, history(32)}, 2), networkLength));
}

TEST_F(NetworkMenuBarItemTest, TheRatePairStandsAloneWhileThereIsNoHistory) {
    const SceneNode rates = ratePair(QStringLiteral("0.0B"), QStringLiteral("0.0B"));
    EXPECT_EQ(pictureIn(MenuBarDisplayStyle::miniBars), picture(rates, networkLength));
    EXPECT_EQ(pictureIn(MenuBarDisplayStyle::sparkline), picture(row({icon(), rates}, 2), networkLength));
}

TEST_F(NetworkMenuBarItemTest, TextOnlyShowsUploadAboveDownloadAtTheTrailingEdge) {
    transfer(0, 0);
    transfer(2048, 102400);
    const auto rate = [](const QString& text) {
        return textNode(text, monospacedSystemFont(8, QFont::Medium), LabelColor{0.7});
    };
    const SceneNode expected =
        column({rate(QStringLiteral("100K")), rate(QStringLiteral("2.0K"))}, 0, ColumnAlignment::trailing);
    EXPECT_EQ(pictureIn(MenuBarDisplayStyle::textOnly), picture(expected, networkLength));
}

TEST_F(NetworkMenuBarItemTest, IconAndTextShowsTheRatePairWithoutTheIcon) {
    transfer(0, 0);
    transfer(1023, 1024);
    EXPECT_EQ(pictureIn(MenuBarDisplayStyle::iconAndText),
              picture(ratePair(QStringLiteral("1.0K"), QStringLiteral("1023B")), networkLength));
}

TEST_F(NetworkMenuBarItemTest, TheSparklineShowsBothHistoriesBesideTheIcon) {
    for (const std::uint64_t bytes : {0U, 5000U, 900U, 7000U})
        transfer(bytes, bytes / 3);
    ASSERT_EQ(monitor.downloadHistory(), QList<double>({0, 5000, 900, 7000}));
    EXPECT_EQ(pictureIn(MenuBarDisplayStyle::sparkline),
              picture(row({icon(), history(36)}, 2), networkLength));
}

TEST_F(NetworkMenuBarItemTest, HistoriesAreCutToTwentySamples) {
    transfer(0, 0);
    transfer(900000, 900000);
    for (int second = 0; second < 20; ++second)
        transfer(1000, 500);
    ASSERT_EQ(monitor.downloadHistory().size(), 22);
    const DualSparklineView flat{.topData = QList<double>(20, 1000),
                                 .bottomData = QList<double>(20, 500),
                                 .topColor = theme().networkDownloadColor,
                                 .bottomColor = theme().networkUploadColor,
                                 .width = 36,
                                 .height = 14};
    EXPECT_EQ(pictureIn(MenuBarDisplayStyle::sparkline), picture(row({icon(), {flat}}, 2), networkLength));
}

TEST_F(NetworkMenuBarItemTest, DotsShowDownloadAndThenUpload) {
    transfer(0, 0);
    transfer(1025, 1024);
    const SceneNode dots =
        dotsNode({theme().networkDownloadColor, withOpacity(theme().networkUploadColor, 0.2)}, 5);
    EXPECT_EQ(pictureIn(MenuBarDisplayStyle::dotIndicator), picture(row({icon(), dots}, 2), networkLength));
}

TEST_F(NetworkMenuBarItemTest, StaysInItsPlaceInEveryStyle) {
    transfer(0, 0);
    transfer(std::uint64_t{1023} << 20, std::uint64_t{1023} << 40);
    expectItStaysInItsPlace(item, networkLength);
}

TEST_F(NetworkMenuBarItemTest, DescribesBothRatesInWords) {
    transfer(0, 0);
    transfer(1536, 20);
    EXPECT_EQ(item.body().accessibleText, QStringLiteral("Network download 1.5 KB/s, upload 20 B/s"));
}

} // namespace
} // namespace orvelle
