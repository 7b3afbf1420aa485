#include "animation/animation_clock.h"
#include "support/quick_timers.h"
#include "windows/panels/panel_fixture.h"
#include "windows/panels/panel_texts.h"

#include <fmt/format.h>

namespace orvelle {
namespace {

using NetworkPanel = PanelFixture;
using DiskPanel = PanelFixture;
using BatteryPanel = PanelFixture;
using SensorPanel = PanelFixture;

PowerSourceDescription onBattery(std::int64_t charge) {
    return {.currentCapacity = charge,
            .isCharging = false,
            .powerSourceState = PowerSourceDescription::batteryPower,
            .isCharged = false,
            .timeToEmpty = 125,
            .timeToFullCharge = -1};
}

SmartBatteryProperties aBattery(std::int64_t maxCapacity) {
    return {.cycleCount = 312,
            .designCapacity = 5000,
            .rawMaxCapacity = maxCapacity,
            .temperature = 3050,
            .voltage = 12000,
            .amperage = -1500};
}

TEST_F(NetworkPanel, ScalesBothGraphsAlike) {
    ASSERT_NE(show(u"network"), nullptr);
    EXPECT_EQ(item("firstGraph")->property("maxValue").toDouble(), 1024);
    machine.network->entries = {{.name = "en0", .isUp = true, .ipv4Address = "10.0.0.2", .bytesIn = 1 << 20}};
    sample();
    machine.network->entries->front().bytesIn += 3 << 20;
    sample();
    EXPECT_EQ(item("firstGraph")->property("maxValue").toDouble(), 1 << 20);
    EXPECT_EQ(item("secondGraph")->property("maxValue").toDouble(), 1 << 20);
    EXPECT_EQ(colorOf("secondGraph", "gridColor").alpha(), 0);
    EXPECT_TRUE(shows(u"1.0 MB/s"));
    EXPECT_TRUE(shows(u"10.0.0.2"));
    EXPECT_TRUE(shows(u"4.0 MB"));
}

TEST_F(NetworkPanel, ShowsSixtyInterfacesAboveItsFooter) {
    machine.network->entries.emplace();
    for (int index = 0; index < 60; ++index)
        machine.network->entries->push_back({.name = fmt::format("interface-with-a-long-name-{:02}", index),
                                             .isUp = true,
                                             .ipv4Address = "10.0.0.2",
                                             .ipv6Address = "2001:db8:1234:5678:9abc:def0:1234:5678",
                                             .bytesIn = 1});
    sample();
    ASSERT_NE(show(u"network"), nullptr);
    EXPECT_EQ(shownTexts().filter(QStringLiteral("interface-with")).size(), 60);
    expectNothingIsCutOff();
    QQuickItem* scroller = item("scroller");
    EXPECT_TRUE(scroller->property("interactive").toBool());
    scroller->forceActiveFocus();
    QTest::keyClick(panel.get(), Qt::Key_End);
    EXPECT_DOUBLE_EQ(scroller->property("contentY").toDouble(),
                     scroller->property("contentHeight").toDouble() - scroller->height());
    machine.network->entries->resize(1);
    sample();
    EXPECT_TRUE(waitUntil([&] { return scroller->property("contentY").toDouble() == 0; }));
}

TEST_F(DiskPanel, ColoursVolumesByTheirUsage) {
    machine.disk->volumes = {{.path = "/", .isLocal = true, .totalBytes = 1000, .freeBytes = 300}};
    sample();
    ASSERT_NE(show(u"disk"), nullptr);
    EXPECT_EQ(textOf("percent"), QStringLiteral("70%"));
    EXPECT_EQ(colorOf("percent"), SystemColors::yellow);
    EXPECT_EQ(item("symbol")->property("name").toString(), QStringLiteral("internaldrive"));
    EXPECT_TRUE(shows(u"700 B used"));
    machine.disk->volumes->front().freeBytes = 100;
    sample();
    EXPECT_EQ(colorOf("percent"), SystemColors::red);
    machine.disk->volumes->front().freeBytes = 500;
    sample();
    EXPECT_EQ(colorOf("percent"), asShown(themes.diskColor(settings)));
}

TEST_F(DiskPanel, ShowsFortyVolumesAboveItsFooter) {
    machine.disk->volumes.emplace();
    for (int index = 0; index < 40; ++index)
        machine.disk->volumes->push_back({.path = fmt::format("/media/{}", index),
                                          .name = std::string(300, 'W'),
                                          .isLocal = true,
                                          .totalBytes = 4'000'000'000'000,
                                          .freeBytes = 1'000'000'000'000});
    sample();
    ASSERT_NE(show(u"disk"), nullptr);
    EXPECT_EQ(shownTexts().filter(QStringLiteral("used")).size(), 40);
    EXPECT_EQ(item("symbol")->property("name").toString(), QStringLiteral("externaldrive"));
    expectNothingIsCutOff();
}

TEST_F(BatteryPanel, ShowsANoticeWithoutABattery) {
    sample();
    ASSERT_NE(show(u"battery"), nullptr);
    EXPECT_EQ(shownTexts(),
              (QStringList{QStringLiteral("No Battery Detected"), PanelTexts::mainsPowerNotice()}));
}

TEST_F(BatteryPanel, ShowsADischargingBatteryInCelsius) {
    settings.setUseFahrenheit(true);
    machine.battery->powerSources = {{onBattery(64)}};
    machine.battery->smartBattery = aBattery(4000);
    sample();
    ASSERT_NE(show(u"battery"), nullptr);
    EXPECT_EQ(textOf("charge"), QStringLiteral("64%"));
    EXPECT_EQ(textOf("state"), QStringLiteral("On Battery"));
    EXPECT_EQ(textOf("time"), QStringLiteral("2:05 remaining"));
    EXPECT_EQ(textOf("power"), QStringLiteral("18.0 W"));
    EXPECT_FALSE(item("mark")->isVisible());
    for (const char16_t* text :
         {u"30°C", u"12.00 V", u"-1500 mA", u"312", u"80%", u"Design: 5000 mAh | Max: 4000 mAh"})
        EXPECT_TRUE(shows(text)) << QString::fromUtf16(text).toStdString();
    EXPECT_EQ(colorOf("health"), SystemColors::yellow);
}

TEST_F(BatteryPanel, FollowsChargingToFullAndTheBatteryGoingAway) {
    PowerSourceDescription charging = onBattery(90);
    charging.isCharging = true;
    machine.battery->powerSources = {{charging}};
    sample();
    ASSERT_NE(show(u"battery"), nullptr);
    EXPECT_EQ(shownTexts().count(QStringLiteral("Charging")), 1);
    EXPECT_EQ(textOf("mark"), QStringLiteral("Charging"));
    EXPECT_EQ(colorOf("mark"), SystemColors::yellow);
    EXPECT_EQ(textOf("time"), QStringLiteral("Calculating..."));
    charging.isCharging = false;
    charging.isCharged = true;
    machine.battery->powerSources = {{charging}};
    sample();
    EXPECT_EQ(textOf("state"), QStringLiteral("Full"));
    EXPECT_EQ(textOf("mark"), QStringLiteral("Fully Charged"));
    EXPECT_EQ(colorOf("mark"), SystemColors::green);
    machine.battery->powerSources.emplace();
    sample();
    EXPECT_TRUE(item("notice")->isVisible());
    EXPECT_FALSE(item("details")->isVisible());
}

TEST_F(BatteryPanel, ShowsTheStateBesideTheCharge) {
    machine.battery->powerSources = {{onBattery(64)}};
    sample();
    ASSERT_NE(show(u"battery"), nullptr);
    const auto placeOf = [this](const char* name) {
        return item(name)->mapRectToScene(item(name)->boundingRect());
    };
    const QRectF charge = placeOf("charge");
    const QRectF state = placeOf("state");
    EXPECT_GE(state.left(), charge.right());
    EXPECT_TRUE(state.top() >= charge.top() && state.bottom() <= charge.bottom());
}

TEST_F(BatteryPanel, KeepsItsNoticeInTheMiddleOfASmallerWindow) {
    sample();
    ASSERT_NE(show(u"battery"), nullptr);
    const auto middle = [this] {
        return item("notice")->mapRectToScene(item("notice")->boundingRect()).center();
    };
    const auto room = [this] { return item("scroller")->boundingRect().center(); };
    const double othersHeight = 500 - item("scroller")->height();
    for (const int height : {500, 400, 450}) {
        panel->resize(320, height);
        settle();
        ASSERT_EQ(item("scroller")->height(), height - othersHeight);
        EXPECT_LE(std::abs(middle().y() - room().y()), 1) << height;
        EXPECT_NEAR(middle().x(), room().x(), 0.5);
        EXPECT_FALSE(item("scroller")->property("interactive").toBool()) << height;
    }
}

TEST_F(SensorPanel, ShowsPlaceholdersWithoutSensors) {
    sample();
    ASSERT_NE(show(u"sensor"), nullptr);
    EXPECT_TRUE(shows(u"No sensor data available"));
    EXPECT_TRUE(shows(u"FAN SPEEDS"));
    EXPECT_FALSE(item("graphs")->isVisible());
}

TEST_F(SensorPanel, StretchesEachGaugeToHalfOfTheRow) {
    sample();
    ASSERT_NE(show(u"sensor"), nullptr);
    const auto placeOf = [this](const char* gauge) {
        return item(gauge)->mapRectToScene(item(gauge)->boundingRect());
    };
    EXPECT_EQ(placeOf("cpuGauge").left(), 16);
    EXPECT_EQ(placeOf("cpuGauge").width(), (320 - 2 * 16 - 20) / 2);
    EXPECT_EQ(placeOf("gpuGauge").left(), placeOf("cpuGauge").right() + 20);
    EXPECT_EQ(placeOf("gpuGauge").right(), 320 - 16);
}

TEST_F(SensorPanel, PutsTheLegendsOfItsHistoryFourPointsApart) {
    sample();
    ASSERT_NE(show(u"sensor"), nullptr);
    const QQuickItem* first = item("cpuKey");
    const QQuickItem* second = item("gpuKey");
    EXPECT_EQ(second->x() - first->x() - first->width(), 4);
}

TEST_F(SensorPanel, ColoursAFahrenheitReadingByItsCelsiusValue) {
    settings.setUseFahrenheit(true);
    machine.sensor->cpuTemperature = 72;
    machine.sensor->sensors = {{.key = "a", .name = "Board", .value = 50}};
    sample(2);
    ASSERT_NE(show(u"sensor"), nullptr);
    EXPECT_EQ(textOf("value"), QStringLiteral("122°F"));
    EXPECT_EQ(colorOf("value"), SystemColors::yellow);
    EXPECT_TRUE(item("graphs")->isVisible());
    EXPECT_FALSE(item("gpuGraph")->isVisible());
    EXPECT_FALSE(item("placeholder")->isVisible());
}

TEST_F(SensorPanel, TurnsTheIconsOfFansThatTurn) {
    machine.sensor->fanSpeeds = {1500};
    sample();
    ASSERT_NE(show(u"sensor"), nullptr);
    EXPECT_EQ(textOf("speed"), QStringLiteral("1500 RPM"));
    const double before = item("icon")->property("angle").toDouble();
    EXPECT_TRUE(waitUntil([&] { return item("icon")->property("angle").toDouble() != before; }));
    EXPECT_TRUE(hasRunningTimer(*panel->contentItem()));
    AnimationClock::shared().setReduced(true);
    EXPECT_FALSE(hasRunningTimer(*panel->contentItem())) << "the fans stand still";
    AnimationClock::shared().setReduced(false);
}

TEST_F(SensorPanel, ShowsTwoHundredSensorsAboveItsFooter) {
    for (int index = 0; index < 200; ++index)
        machine.sensor->sensors.push_back(
            {.key = std::to_string(index), .name = "Sensor " + std::string(200, 'M'), .value = 45});
    machine.sensor->fanSpeeds = std::vector<std::int64_t>(12, 2400);
    sample();
    ASSERT_NE(show(u"sensor"), nullptr);
    EXPECT_EQ(shownTexts().filter(QStringLiteral("Sensor M")).size(), 200);
    EXPECT_EQ(shownTexts().filter(QStringLiteral("RPM")).size(), 12);
    expectNothingIsCutOff();
}

} // namespace
} // namespace orvelle
