#include "core/sensor_monitor.h"
#include "item_fixture.h"
#include "menu_bar/sensor_menu_bar_item.h"
#include "platform/replay/fake_sources.h"
#include "theme/colors.h"
#include "theme/fonts.h"

namespace orvelle {
namespace {

constexpr double sensorLength = 50;

class SensorMenuBarItemTest : public ItemFixture {
protected:
    void warm(double celsius) {
        source.cpuTemperature = celsius;
        monitor.update();
    }
    [[nodiscard]] QImage pictureIn(MenuBarDisplayStyle style) {
        settings.setMenuBarDisplayStyle(style);
        return picture(item, sensorLength);
    }
    [[nodiscard]] static SceneNode text(const QString& text, const TextColor& color) {
        return textNode(text, monospacedSystemFont(10, QFont::Medium), color);
    }
    [[nodiscard]] QColor cool() const { return temperatureColor(20, themes.sensorColor(settings)); }

    FakeSensorSource source;
    SensorMonitor monitor{source};
    SensorMenuBarItem item{monitor, settings, themes};
};

TEST_F(SensorMenuBarItemTest, MiniBarsAndTextOnlyShowTheTemperature) {
    warm(45);
    const QImage expected = picture(text(QStringLiteral("45°"), cool()), sensorLength);
    EXPECT_EQ(pictureIn(MenuBarDisplayStyle::textOnly), expected);
    EXPECT_EQ(pictureIn(MenuBarDisplayStyle::miniBars), expected);
}

TEST_F(SensorMenuBarItemTest, IconAndTextShowsBothInTheTemperaturesColour) {
    warm(85);
    const SceneNode icon = iconNode(QStringLiteral("thermometer.medium"), SystemColors::red);
    EXPECT_EQ(pictureIn(MenuBarDisplayStyle::iconAndText),
              picture(row({icon, text(QStringLiteral("85°"), SystemColors::red)}, 2), sensorLength));
}

TEST_F(SensorMenuBarItemTest, DashesInTheSecondaryColourStandForNoTemperature) {
    EXPECT_EQ(pictureIn(MenuBarDisplayStyle::textOnly),
              picture(text(QStringLiteral("--°"), secondaryLabel), sensorLength));
    EXPECT_EQ(item.body().accessibleText, QStringLiteral("Sensors: no temperature"));
}

TEST_F(SensorMenuBarItemTest, TheMenuBarStaysInCelsius) {
    warm(45);
    const QImage before = pictureIn(MenuBarDisplayStyle::textOnly);
    settings.setUseFahrenheit(true);
    EXPECT_EQ(pictureIn(MenuBarDisplayStyle::textOnly), before);
    EXPECT_EQ(item.body().accessibleText, QStringLiteral("Sensors 45°C"));
}

TEST_F(SensorMenuBarItemTest, TheSparklineShowsTheTemperatureHistoryUpTo110Degrees) {
    for (const double celsius : {40.0, 90.0, 65.0})
        warm(celsius);
    const SceneNode icon = iconNode(QStringLiteral("thermometer.medium"), SystemColors::yellow);
    const SceneNode history = historyNode({40, 90, 65}, SystemColors::yellow, 110, {24, 10});
    EXPECT_EQ(pictureIn(MenuBarDisplayStyle::sparkline), picture(row({icon, history}, 2), sensorLength));
}

TEST_F(SensorMenuBarItemTest, DotsShowHowWarmItIs) {
    warm(39);
    const SceneNode icon = iconNode(QStringLiteral("thermometer.medium"), cool());
    EXPECT_EQ(pictureIn(MenuBarDisplayStyle::dotIndicator),
              picture(row({icon, dotsNode(temperatureDotColors(39))}, 2), sensorLength));
}

TEST_F(SensorMenuBarItemTest, StaysInItsPlaceInEveryStyle) {
    warm(100);
    warm(120);
    expectItStaysInItsPlace(item, sensorLength);
}

const QColor sensorModuleColor(40, 80, 120);

/// The number of dots at full strength, from the left. The others must be dimmed to 0.15.
qsizetype litTemperatureDots(double celsius) {
    qsizetype lit = 0;
    for (const QColor& color : temperatureDotColors(celsius)) {
        EXPECT_TRUE(color.alpha() == 255 || color.alpha() == 38) << color.alpha();
        lit += color.alpha() == 255 ? 1 : 0;
    }
    return lit;
}

TEST(TemperatureText, HasWholeDegreesWithoutAUnit) {
    EXPECT_EQ(temperatureText(45.4), QStringLiteral("45°"));
    EXPECT_EQ(temperatureText(99.6), QStringLiteral("100°"));
    EXPECT_EQ(temperatureText(0.2), QStringLiteral("0°"));
}

TEST(TemperatureText, HasDashesForAnUnknownTemperature) {
    EXPECT_EQ(temperatureText(0), QStringLiteral("--°"));
    EXPECT_EQ(temperatureText(-3), QStringLiteral("--°"));
}

TEST(TemperatureColor, WarnsOfHeat) {
    QColor cool = sensorModuleColor;
    cool.setAlphaF(0.7F);
    EXPECT_EQ(temperatureColor(59.9, sensorModuleColor), cool);
    EXPECT_EQ(temperatureColor(60, sensorModuleColor), SystemColors::yellow);
    EXPECT_EQ(temperatureColor(79.9, sensorModuleColor), SystemColors::yellow);
    EXPECT_EQ(temperatureColor(80, sensorModuleColor), SystemColors::red);
}

TEST(TemperatureDots, LightOneForEachFullTwentyDegrees) {
    EXPECT_EQ(litTemperatureDots(0), 0);
    EXPECT_EQ(litTemperatureDots(19.9), 0);
    EXPECT_EQ(litTemperatureDots(39), 1);
    EXPECT_EQ(litTemperatureDots(40), 2);
    EXPECT_EQ(litTemperatureDots(99.9), 4);
    EXPECT_EQ(litTemperatureDots(100), 5);
    EXPECT_EQ(litTemperatureDots(149), 5);
    EXPECT_EQ(litTemperatureDots(-30), 0);
}

TEST(TemperatureDots, RunFromGreenToRed) {
    EXPECT_EQ(temperatureDotColors(100),
              QList<QColor>({SystemColors::green, SystemColors::green, SystemColors::yellow,
                             SystemColors::orange, SystemColors::red}));
}

} // namespace
} // namespace orvelle
