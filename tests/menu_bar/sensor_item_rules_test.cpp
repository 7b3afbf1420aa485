#include "menu_bar/sensor_item_rules.h"
#include "theme/system_colors.h"

#include <gtest/gtest.h>

namespace orvelle {
namespace {

const QColor sensorModuleColor(40, 80, 120);

/// How many of the dots, from the left, are at full strength; the others must be dimmed to 0.15.
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

TEST(TemperatureText, HasDashesWhereNoTemperatureIsKnown) {
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
