#include "charts/bar_look.h"
#include "core/cpu_monitor.h"
#include "core/severity.h"
#include "item_fixture.h"
#include "menu_bar/cpu_menu_bar_item.h"
#include "menu_bar/scene_layout.h"
#include "platform/replay/fake_sources.h"
#include "theme/colors.h"

#include <cmath>

namespace orvelle {
namespace {

/// The slots of so many cores in the menu bar.
QList<QRectF> slotsOf(qsizetype coreCount) {
    return coreBarSlots(coreCount, {coreBarsWidth(coreCount), coreBarsHeight});
}

constexpr double cpuLength = 60;

class CPUMenuBarItemTest : public ItemFixture {
protected:
    /// Adds a sample in which the cores were busy for these fractions of the time.
    void run(const QList<double>& loads) {
        if (!source.ticks)
            source.ticks = std::vector<CoreTicks>(static_cast<size_t>(loads.size()));
        if (!monitor)
            monitor.emplace(source, clock.reader());
        for (qsizetype core = 0; core < loads.size(); ++core) {
            CoreTicks& ticks = source.ticks->at(static_cast<size_t>(core));
            const auto busy = static_cast<std::uint64_t>(std::llround(loads.at(core) * 10000));
            ticks.user += busy / 2;
            ticks.system += busy - busy / 2;
            ticks.idle += 10000 - busy;
        }
        monitor->updateUsage();
    }
    [[nodiscard]] CPUMenuBarItem item() { return {*monitor, settings, themes}; }
    [[nodiscard]] QImage pictureIn(MenuBarDisplayStyle style) {
        settings.setMenuBarDisplayStyle(style);
        return picture(item(), cpuLength);
    }
    [[nodiscard]] QColor color() const { return themes.cpuColor(settings); }

    FakeProcessorSource source;
    FakeClock clock;
    std::optional<CPUMonitor> monitor;
};

TEST(CPUColors, ChangeWhereTheUsageBecomesAWarningAndCritical) {
    for (int thousandths = 0; thousandths <= 1000; ++thousandths) {
        const double usage = thousandths / 1000.0;
        const Severity severity = processorSeverity(usage);
        const QColor color = miniBarColor(usage, Qt::blue);
        EXPECT_EQ(severity == Severity::normal, color == QColor(Qt::blue)) << usage;
        EXPECT_EQ(severity == Severity::critical, color == SystemColors::red) << usage;
    }
}

TEST_F(CPUMenuBarItemTest, TextOnlyShowsTheUsageAlone) {
    run({0.25, 0.65});
    const QImage shown = pictureIn(MenuBarDisplayStyle::textOnly);
    EXPECT_EQ(shown, picture(valueNode(QStringLiteral("45%")), cpuLength));
}

TEST_F(CPUMenuBarItemTest, IconAndTextShowsTheIconBesideTheUsage) {
    run({1, 1});
    const QImage shown = pictureIn(MenuBarDisplayStyle::iconAndText);
    EXPECT_EQ(shown,
              picture(row({iconNode(QStringLiteral("cpu"), color()), valueNode(QStringLiteral("100%"))}, 3),
                      cpuLength));
}

TEST_F(CPUMenuBarItemTest, SixteenCoresDrawSixteenBarsInFortyTwoPoints) {
    run(QList<double>(16, 1.0));
    const QImage shown = pictureIn(MenuBarDisplayStyle::miniBars);
    // Icon 12, gap 3 and bars 42 are centred in 60, so the bars start at 16.5 points.
    const int left = 33;
    const int right = 33 + 84;
    const int bottomLine = (11 + 7) * 2 - 1;
    EXPECT_EQ(countRuns(shown, bottomLine, left, right), 16);
    EXPECT_EQ(countRuns(shown, bottomLine, right, shown.width()), 0);
    EXPECT_EQ(shown.pixel(left + 1, bottomLine), SystemColors::red.rgba());
}

TEST_F(CPUMenuBarItemTest, ABarIsAsHighAsItsCoreIsBusyAndShowsTheModulesColour) {
    run({0.4, 0, 0, 0});
    const QImage shown = pictureIn(MenuBarDisplayStyle::miniBars);
    // Icon 12, gap 3 and bars 14 are centred in 60, so the first bar starts at 30.5 points.
    const int insideFirstBar = 61 + 2;
    const int bottom = (11 + 7) * 2;
    EXPECT_EQ(shown.pixel(insideFirstBar, bottom - 2), color().rgba());
    EXPECT_EQ(shown.pixel(insideFirstBar, bottom - 10), color().rgba()) << "0.4 of 14 points are 11.2 pixels";
    EXPECT_EQ(shown.pixelColor(insideFirstBar, bottom - 13).alpha(), 0);
}

TEST_F(CPUMenuBarItemTest, HasEasingBarsOnlyInTheStyleOfBars) {
    run({0.4, 1});
    const auto level = [](double ratio, const QColor& tint) {
        return Level{.look = {ratio, tint}, .fullLength = 14, .eases = true};
    };
    EXPECT_EQ(levelsOf(item().body().body), QList<Level>({level(0.4, color()), level(1, SystemColors::red)}));
    for (const MenuBarDisplayStyle style : allDisplayStyles) {
        settings.setMenuBarDisplayStyle(style);
        EXPECT_EQ(levelsOf(item().body().body).size(), style == MenuBarDisplayStyle::miniBars ? 2 : 0);
    }
}

TEST_F(CPUMenuBarItemTest, WithoutCoresTheBarsAndDotsTakeNoRoom) {
    source.ticks = std::vector<CoreTicks>();
    monitor.emplace(source, clock.reader());
    const QImage iconAlone =
        picture(row({iconNode(QStringLiteral("cpu"), color()), dotsNode({})}, 3), cpuLength);
    EXPECT_EQ(pictureIn(MenuBarDisplayStyle::miniBars), iconAlone);
    EXPECT_EQ(pictureIn(MenuBarDisplayStyle::dotIndicator), iconAlone);
}

TEST_F(CPUMenuBarItemTest, SixteenCoresDrawEightDots) {
    run(QList<double>(16, 1.0));
    const QImage shown = pictureIn(MenuBarDisplayStyle::dotIndicator);
    const int afterTheIcon = 14 * 2;
    EXPECT_EQ(countRuns(shown, shown.height() / 2, afterTheIcon, shown.width()), 8);
}

TEST_F(CPUMenuBarItemTest, EightDotsAreDrawnInTheirOwnSize) {
    run(QList<double>(8, 1.0));
    settings.setMenuBarDisplayStyle(MenuBarDisplayStyle::dotIndicator);
    for (const double ratio : {1.0, 1.5, 2.0, 3.0}) {
        const QImage shown = picture(item(), cpuLength, ratio);
        const QImage inAWidePlace = picture(item(), cpuLength + 40, ratio);
        const int dotsWidth = qRound(46 * ratio);
        const auto dotsOf = [dotsWidth](const QImage& image) {
            const int end = paintedRect(image).right() + 1;
            return image.copy(end - dotsWidth, 0, dotsWidth, image.height());
        };
        EXPECT_EQ(dotsOf(shown), dotsOf(inAWidePlace)) << "at scale " << ratio;
    }
}

TEST_F(CPUMenuBarItemTest, DotsShowEachCoresLoad) {
    run({0.2, 0.4, 0.7, 0.8});
    QColor faint = color();
    faint.setAlphaF(0.3F);
    QColor half = color();
    half.setAlphaF(0.6F);
    const SceneNode dots = dotsNode({faint, half, color(), SystemColors::red});
    EXPECT_EQ(pictureIn(MenuBarDisplayStyle::dotIndicator),
              picture(row({iconNode(QStringLiteral("cpu"), color()), dots}, 3), cpuLength));
}

TEST_F(CPUMenuBarItemTest, TheSparklineShowsTheUsageHistoryAtFullScaleOne) {
    for (const double load : {0.1, 0.9, 0.3})
        run({load});
    const SceneNode history = historyNode({0.1, 0.9, 0.3}, color(), 1.0, {32, 12});
    EXPECT_EQ(pictureIn(MenuBarDisplayStyle::sparkline),
              picture(row({iconNode(QStringLiteral("cpu"), color()), history}, 3), cpuLength));
}

TEST_F(CPUMenuBarItemTest, TheUsersOwnColourReplacesTheThemes) {
    run({0.4});
    settings.setUseCustomCPUColor(true);
    settings.setCustomCPUColorHex(QStringLiteral("#12FE34"));
    EXPECT_GT(countPixels(pictureIn(MenuBarDisplayStyle::iconAndText), QColor(0x12, 0xFE, 0x34)), 20);
}

TEST_F(CPUMenuBarItemTest, OtherSettingsDoNotChangeTheItem) {
    run({0.25, 0.65});
    const QImage before = pictureIn(MenuBarDisplayStyle::miniBars);
    settings.setCompactMode(true);
    settings.setUseFahrenheit(true);
    settings.setCpuDisplayMode(SettingsStore::CPUDisplayMode::percentage);
    EXPECT_EQ(pictureIn(MenuBarDisplayStyle::miniBars), before);
}

TEST_F(CPUMenuBarItemTest, StaysInItsPlaceInEveryStyle) {
    run(QList<double>(16, 1.0));
    run(QList<double>(16, 0.1));
    expectItStaysInItsPlace(item(), cpuLength);
}

TEST_F(CPUMenuBarItemTest, DescribesTheUsageInWords) {
    run({0.12});
    EXPECT_EQ(item().body().accessibleText, QStringLiteral("CPU 12%"));
}

const QColor cpuModuleColor(40, 80, 120);

TEST(CoreBars, TakeThreeAndAHalfPointsEachUpToTwelveCores) {
    EXPECT_EQ(coreBarsWidth(0), 0);
    EXPECT_EQ(coreBarsWidth(1), 3.5);
    EXPECT_EQ(coreBarsWidth(12), 42);
    EXPECT_EQ(coreBarsWidth(16), 42);
}

TEST(CoreBars, AreOneForEachCoreOnePointApart) {
    const QList<QRectF> bars = slotsOf(16);
    ASSERT_EQ(bars.size(), 16);
    EXPECT_DOUBLE_EQ(bars.at(1).left() - bars.at(0).right(), 1);
    EXPECT_DOUBLE_EQ(bars.at(0).width(), 27.0 / 16);
    EXPECT_DOUBLE_EQ(bars.last().right(), 42);
    EXPECT_EQ(bars.first().height(), 14);
}

TEST(CoreBars, OfOneCoreFillTheFrame) {
    EXPECT_EQ(slotsOf(1), QList<QRectF>({QRectF(0, 0, 3.5, 14)}));
}

TEST(CoreBars, AreNoneWithoutCores) {
    EXPECT_TRUE(slotsOf(0).isEmpty());
}

TEST(CoreBars, OfVeryManyCoresStayWithinTheFrameAndAreAsWideAsTheirGaps) {
    for (const qsizetype count : {22, 43, 128, 1024}) {
        const QList<QRectF> bars = slotsOf(count);
        ASSERT_EQ(bars.size(), count);
        EXPECT_NEAR(bars.last().right(), 42, 1e-9);
        EXPECT_NEAR(bars.at(1).left() - bars.at(0).right(), bars.at(0).width(), 1e-9);
    }
}

TEST(CoreDots, StopAtEightCores) {
    EXPECT_EQ(coreDotCount(0), 0);
    EXPECT_EQ(coreDotCount(8), 8);
    EXPECT_EQ(coreDotCount(16), 8);
}

TEST(CoreDots, GrowStrongerWithTheLoadAndTurnRed) {
    QColor faint = cpuModuleColor;
    faint.setAlphaF(0.3F);
    QColor half = cpuModuleColor;
    half.setAlphaF(0.6F);
    EXPECT_EQ(coreDotColor(0, cpuModuleColor), faint);
    EXPECT_EQ(coreDotColor(0.2999, cpuModuleColor), faint);
    EXPECT_EQ(coreDotColor(0.3, cpuModuleColor), half);
    EXPECT_EQ(coreDotColor(0.5999, cpuModuleColor), half);
    EXPECT_EQ(coreDotColor(0.6, cpuModuleColor), cpuModuleColor);
    EXPECT_EQ(coreDotColor(0.7999, cpuModuleColor), cpuModuleColor);
    EXPECT_EQ(coreDotColor(0.8, cpuModuleColor), SystemColors::red);
    EXPECT_EQ(coreDotColor(1, cpuModuleColor), SystemColors::red);
}

} // namespace
} // namespace orvelle
