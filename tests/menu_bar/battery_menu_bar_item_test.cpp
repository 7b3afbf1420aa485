#include "core/battery_monitor.h"
#include "item_fixture.h"
#include "menu_bar/battery_glyph.h"
#include "menu_bar/battery_menu_bar_item.h"
#include "platform/replay/fake_sources.h"
#include "theme/colors.h"

#include <limits>

namespace orvelle {
namespace {

constexpr double batteryLength = 65;

class BatteryMenuBarItemTest : public ItemFixture {
protected:
    void charge(std::int64_t percent, bool isCharging = false) {
        source.powerSources = std::vector<std::optional<PowerSourceDescription>>{
            PowerSourceDescription{.currentCapacity = percent, .isCharging = isCharging}};
        monitor.update();
    }
    [[nodiscard]] QImage pictureIn(MenuBarDisplayStyle style) {
        settings.setMenuBarDisplayStyle(style);
        return picture(item, batteryLength);
    }
    [[nodiscard]] static SceneNode bolt() {
        return symbolNode(QStringLiteral("bolt.fill"), 7, SystemColors::yellow);
    }
    [[nodiscard]] QColor color() const { return themes.batteryColor(settings); }

    FakeBatterySource source;
    BatteryMonitor monitor{source};
    BatteryMenuBarItem item{monitor, settings, themes};
};

TEST_F(BatteryMenuBarItemTest, MiniBarsAndIconAndTextShowTheGlyphBesideTheCharge) {
    charge(63);
    const QImage expected = picture(
        row({{BatteryShape{.charge = 0.63, .color = color()}}, valueNode(QStringLiteral("63%"), 10)}, 2),
        batteryLength);
    EXPECT_EQ(pictureIn(MenuBarDisplayStyle::miniBars), expected);
    EXPECT_EQ(pictureIn(MenuBarDisplayStyle::iconAndText), expected);
}

TEST_F(BatteryMenuBarItemTest, TextOnlyShowsTheChargeAlone) {
    charge(9);
    EXPECT_EQ(pictureIn(MenuBarDisplayStyle::textOnly),
              picture(valueNode(QStringLiteral("9%")), batteryLength));
}

TEST_F(BatteryMenuBarItemTest, ABoltFollowsTheChargeWhileCharging) {
    charge(50, true);
    EXPECT_EQ(pictureIn(MenuBarDisplayStyle::textOnly),
              picture(row({valueNode(QStringLiteral("50%")), bolt()}, 2), batteryLength));
    const SceneNode glyph = {BatteryShape{.charge = 0.5, .color = SystemColors::green}};
    EXPECT_EQ(
        pictureIn(MenuBarDisplayStyle::miniBars),
        picture(row({glyph, row({valueNode(QStringLiteral("50%"), 10), bolt()}, 2)}, 2), batteryLength));
}

TEST_F(BatteryMenuBarItemTest, TheSparklineShowsTheChargeHistoryInTheBatterysColour) {
    for (const std::int64_t percent : {60, 50, 30})
        charge(percent);
    const SceneNode icon = iconNode(QStringLiteral("battery.100"), SystemColors::yellow);
    const SceneNode history = historyNode({0.6, 0.5, 0.3}, SystemColors::yellow, 1.0, {28, 12});
    EXPECT_EQ(pictureIn(MenuBarDisplayStyle::sparkline), picture(row({icon, history}, 2), batteryLength));
}

TEST_F(BatteryMenuBarItemTest, DotsShowTheChargeInTheBatterysColour) {
    charge(15);
    const SceneNode icon = iconNode(QStringLiteral("battery.100"), SystemColors::red);
    const SceneNode dots = dotsNode(batteryDotColors(15, SystemColors::red));
    EXPECT_EQ(pictureIn(MenuBarDisplayStyle::dotIndicator), picture(row({icon, dots}, 2), batteryLength));
}

TEST_F(BatteryMenuBarItemTest, WithoutABatteryEveryStyleShowsExternalPower) {
    const QImage expected = picture(
        row({iconNode(QStringLiteral("powerplug"), SystemColors::green), valueNode(QStringLiteral("AC"), 10)},
            2),
        batteryLength);
    for (const MenuBarDisplayStyle style : allDisplayStyles)
        EXPECT_EQ(pictureIn(style), expected) << "style " << static_cast<int>(style);
    EXPECT_EQ(item.body().accessibleText, QStringLiteral("Battery: none, on AC power"));
}

TEST_F(BatteryMenuBarItemTest, ARemovedBatteryLeavesExternalPower) {
    charge(50);
    const QImage before = pictureIn(MenuBarDisplayStyle::miniBars);
    source.powerSources = std::vector<std::optional<PowerSourceDescription>>{};
    monitor.update();
    EXPECT_NE(pictureIn(MenuBarDisplayStyle::miniBars), before);
    EXPECT_EQ(item.body().accessibleText, QStringLiteral("Battery: none, on AC power"));
}

TEST_F(BatteryMenuBarItemTest, StaysInItsPlaceInEveryStyle) {
    charge(99, true);
    charge(100, true);
    expectItStaysInItsPlace(item, batteryLength);
}

TEST_F(BatteryMenuBarItemTest, AnImpossibleChargeStillFitsItsPlace) {
    charge(std::numeric_limits<std::int64_t>::max(), true);
    charge(std::numeric_limits<std::int64_t>::max(), true);
    expectItStaysInItsPlace(item, batteryLength);
}

TEST_F(BatteryMenuBarItemTest, DescribesTheChargeInWords) {
    charge(85);
    EXPECT_EQ(item.body().accessibleText, QStringLiteral("Battery 85%"));
    charge(86, true);
    EXPECT_EQ(item.body().accessibleText, QStringLiteral("Battery 86%, charging"));
}

using BatteryGlyphTest = ItemFixture;

TEST_F(BatteryGlyphTest, IsFilledInProportionToTheCharge) {
    const QColor fill(10, 200, 30);
    const auto filledPixels = [&](double charge) {
        return countPixels(picture({BatteryShape{.charge = charge, .color = fill}}, batteryLength), fill);
    };
    EXPECT_EQ(filledPixels(0), 0);
    EXPECT_NEAR(filledPixels(0.5), 18 * 16, 24) << "half of 18 points, 8 high, without the corners";
    EXPECT_NEAR(filledPixels(1), 36 * 16, 24);
}

TEST_F(BatteryGlyphTest, HasASharpOutlineAtEveryScale) {
    for (const double ratio : {1.0, 2.0}) {
        const QImage image = paintedImage({30, barHeight}, ratio, [&](QPainter& painter) {
            paintScene(painter, {0, 0, 30, barHeight}, {BatteryShape{.charge = 0, .color = Qt::green}},
                       BarAppearance::dark);
        });
        const int column = qRound(13 * ratio);
        int solid = 0;
        int blurred = 0;
        for (int y = 0; y < image.height() / 2; ++y) {
            const int alpha = qAlpha(image.pixel(column, y));
            solid += alpha == 255 ? 1 : 0;
            blurred += alpha > 0 && alpha < 255 ? 1 : 0;
        }
        EXPECT_EQ(solid, qRound(ratio)) << "at scale " << ratio;
        EXPECT_EQ(blurred, 0) << "at scale " << ratio;
    }
}

const QColor batteryModuleColor(40, 80, 120);

qsizetype litBatteryDots(qint64 charge) {
    return batteryDotColors(charge, batteryModuleColor).count(batteryModuleColor);
}

TEST(BatteryColor, WarnsOfALowCharge) {
    EXPECT_EQ(batteryColor(0, false, batteryModuleColor), SystemColors::red);
    EXPECT_EQ(batteryColor(20, false, batteryModuleColor), SystemColors::red);
    EXPECT_EQ(batteryColor(21, false, batteryModuleColor), SystemColors::yellow);
    EXPECT_EQ(batteryColor(40, false, batteryModuleColor), SystemColors::yellow);
    EXPECT_EQ(batteryColor(41, false, batteryModuleColor), batteryModuleColor);
    EXPECT_EQ(batteryColor(100, false, batteryModuleColor), batteryModuleColor);
}

TEST(BatteryColor, IsGreenWheneverCharging) {
    for (const qint64 charge : {0, 20, 21, 41, 100})
        EXPECT_EQ(batteryColor(charge, true, batteryModuleColor), SystemColors::green);
}

TEST(BatteryFill, GrowsWithTheChargeUpToEighteenPoints) {
    EXPECT_EQ(batteryFillWidth(chargedFraction(0)), 0);
    EXPECT_EQ(batteryFillWidth(chargedFraction(50)), 9);
    EXPECT_EQ(batteryFillWidth(chargedFraction(100)), 18);
}

TEST(BatteryFill, StaysWithinTheGlyphForEveryCharge) {
    EXPECT_EQ(batteryFillWidth(chargedFraction(-5)), 0);
    EXPECT_EQ(batteryFillWidth(chargedFraction(130)), 18);
    EXPECT_EQ(batteryFillWidth(chargedFraction(std::numeric_limits<qint64>::max())), 18);
}

TEST(BatteryDots, LightOneForEachFullFifth) {
    EXPECT_EQ(litBatteryDots(0), 0);
    EXPECT_EQ(litBatteryDots(19), 0);
    EXPECT_EQ(litBatteryDots(20), 1);
    EXPECT_EQ(litBatteryDots(60), 3);
    EXPECT_EQ(litBatteryDots(99), 4);
    EXPECT_EQ(litBatteryDots(100), 5);
    EXPECT_EQ(litBatteryDots(std::numeric_limits<qint64>::max()), 5);
    EXPECT_EQ(batteryDotColors(0, batteryModuleColor).size(), 5);
}

} // namespace
} // namespace orvelle
