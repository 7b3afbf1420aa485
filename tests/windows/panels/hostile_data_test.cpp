#include "windows/panels/panel_fixture.h"

#include <QMetaEnum>
#include <QMetaProperty>
#include <fmt/format.h>

namespace orvelle {
namespace {

/// Markup, control characters, lengths and placeholders that a name may contain.
const std::vector<std::string> hostileNames{
    "<b>bold</b>&amp;<img src='http://example.invalid/x'>",
    "\u202Eeman a sdrawkcab",
    "two\nlines\tand a tab",
    std::string(4096, 'W'),
    "%1 %n %s",
    "\U0001F469\u200D\U0001F680 e\u0301\u0302\u0303\u0304",
    "",
};

const std::string& hostileName(std::size_t index) {
    return hostileNames[index % hostileNames.size()];
}

class HostileData : public PanelFixture {
protected:
    /// No value is cut, and the last row can be scrolled into view.
    void expectEverythingCanBeRead() {
        expectNothingIsCutOff();
        for (const QQuickItem* text : shownItems("QQuickText")) {
            constexpr int plainText = 0;
            EXPECT_EQ(text->property("textFormat").toInt(), plainText)
                << "may be read as markup: " << text->property("text").toString().toStdString();
            const bool isWhole = !text->property("truncated").toBool();
            EXPECT_TRUE(isWhole || isHostile(text->property("text").toString()))
                << "cut: " << text->property("text").toString().toStdString();
        }
        QQuickItem* scroller = item("scroller");
        scroller->forceActiveFocus();
        QTest::keyClick(panel.get(), Qt::Key_End);
        double lowest = 0;
        for (const QQuickItem* text : shownItems("QQuickText")) {
            if (scroller->isAncestorOf(text))
                lowest = std::max(lowest, text->mapRectToScene(text->boundingRect()).bottom());
        }
        EXPECT_GT(lowest, 0);
        EXPECT_LE(lowest, scroller->y() + scroller->height());
    }

    /// Sets every enumeration to each of its values, inverts every switch and selects every theme.
    void changeEverySetting() {
        const QMetaObject& type = SettingsStore::staticMetaObject;
        for (int index = type.propertyOffset(); index < type.propertyCount(); ++index) {
            const QMetaProperty property = type.property(index);
            if (property.isEnumType()) {
                const QMetaEnum values = property.enumerator();
                for (int value = 0; value < values.keyCount(); ++value)
                    property.write(&settings, values.value(value));
            } else if (property.metaType().id() == QMetaType::Bool && property.isWritable()) {
                property.write(&settings, !property.read(&settings).toBool());
            }
        }
        for (const AppTheme& theme : builtInThemes())
            themes.selectTheme(theme.id);
    }

private:
    static bool isHostile(const QString& text) {
        return std::ranges::any_of(hostileNames, [&](const std::string& name) {
            return !name.empty() && text.contains(QString::fromStdString(name));
        });
    }
};

TEST_F(HostileData, OfProcessesLeavesEveryValueReadable) {
    machine.process->totalMemory = std::uint64_t{1} << 40;
    machine.process->processes.emplace();
    for (std::size_t index = 0; index < 500; ++index)
        machine.process->processes->push_back({.pid = static_cast<std::int32_t>(index + 1),
                                               .name = hostileName(index),
                                               .residentBytes = (500 - index) << 31});
    sample();
    ASSERT_NE(show(u"cpu"), nullptr);
    expectEverythingCanBeRead();
    std::uint64_t spent = 0;
    for (ProcessRecord& process : *machine.process->processes)
        process.userNanoseconds = (++spent % 7) * 100'000'000'000;
    sample(3);
    expectEverythingCanBeRead();
    ASSERT_NE(show(u"memory"), nullptr);
    EXPECT_GE(shownTexts().filter(QStringLiteral("GB")).size(), 5);
    expectEverythingCanBeRead();
}

TEST_F(HostileData, OfVolumesLeavesEveryValueReadable) {
    machine.disk->volumes.emplace();
    for (std::size_t index = 0; index < 40; ++index)
        machine.disk->volumes->push_back({.path = fmt::format("/media/{}", index),
                                          .name = hostileName(index),
                                          .isLocal = true,
                                          .totalBytes = std::int64_t{1} << 60,
                                          .freeBytes = std::int64_t{1} << (index + 10)});
    sample();
    ASSERT_NE(show(u"disk"), nullptr);
    EXPECT_EQ(shownTexts().filter(QStringLiteral(" used")).size(), 40);
    expectEverythingCanBeRead();
}

TEST_F(HostileData, OfAVolumeWithMoreFreeThanTotalSpaceShowsNothingUsed) {
    machine.disk->volumes = {{.path = "/", .isLocal = true, .totalBytes = 1024, .freeBytes = 2048}};
    sample();
    ASSERT_NE(show(u"disk"), nullptr);
    EXPECT_TRUE(shows(u"0.0%"));
    EXPECT_TRUE(shows(u"0 B used"));
    EXPECT_TRUE(shows(u"1.0 KB total"));
}

TEST_F(HostileData, OfInterfacesLeavesEveryValueReadable) {
    machine.network->entries.emplace();
    for (std::size_t index = 0; index < 60; ++index)
        machine.network->entries->push_back({.name = hostileName(index) + std::to_string(index),
                                             .isUp = true,
                                             .ipv4Address = "255.255.255.255",
                                             .ipv6Address = "2001:db8:1234:5678:9abc:def0:1234:5678"});
    sample();
    for (InterfaceEntry& entry : *machine.network->entries) {
        entry.bytesIn = std::uint64_t{3} << 40; // a terabyte per second
        entry.bytesOut = 3'000'000'000'000;
    }
    sample();
    ASSERT_NE(show(u"network"), nullptr);
    EXPECT_EQ(shownTexts().filter(QStringLiteral("\u2193")).size(), 60);
    expectEverythingCanBeRead();
}

TEST_F(HostileData, OfSensorsAndFansLeavesEveryValueReadable) {
    for (std::size_t index = 0; index < 200; ++index)
        machine.sensor->sensors.push_back({.key = std::to_string(index),
                                           .name = hostileName(index),
                                           .value = static_cast<double>(index % 149) + 0.5});
    for (std::int64_t fan = 0; fan < 12; ++fan)
        machine.sensor->fanSpeeds.push_back(fan * 20'000 / 11);
    machine.sensor->cpuTemperature = machine.sensor->gpuTemperature = 149.9;
    settings.setUseFahrenheit(true);
    sample(3);
    ASSERT_NE(show(u"sensor"), nullptr);
    EXPECT_EQ(shownTexts().filter(QStringLiteral(" RPM")).size(), 12);
    EXPECT_TRUE(shows(u"20000 RPM"));
    expectEverythingCanBeRead();
}

TEST_F(HostileData, OfTwoHundredCoresLeavesEveryValueReadable) {
    machine.processor->ticks = std::vector<CoreTicks>(200);
    machine.processor->loadAverages = {9999.99, 9999.99, 9999.99};
    machine.processor->bootTime = 0;
    sample();
    for (CoreTicks& core : *machine.processor->ticks)
        core.user += 300;
    sample();
    ASSERT_NE(show(u"cpu"), nullptr);
    EXPECT_EQ(item("coreChart")->property("values").value<QList<double>>().size(), 200);
    EXPECT_TRUE(shows(u"200"));
    expectEverythingCanBeRead();
}

TEST_F(HostileData, OfABatteryThatComesAndGoesLeavesEveryValueReadable) {
    const PowerSourceDescription source{.currentCapacity = 100,
                                        .powerSourceState = PowerSourceDescription::batteryPower,
                                        .timeToEmpty = 100'000};
    machine.battery->powerSources = {{source}};
    machine.battery->smartBattery =
        SmartBatteryProperties{.cycleCount = 99'999, .designCapacity = 1'000'000, .amperage = -99'999};
    sample();
    ASSERT_NE(show(u"battery"), nullptr);
    for (int round = 0; round < 3; ++round) {
        EXPECT_TRUE(item("details")->isVisible());
        expectEverythingCanBeRead();
        machine.battery->powerSources.emplace();
        machine.battery->smartBattery.reset();
        sample();
        settle();
        EXPECT_TRUE(item("notice")->isVisible());
        EXPECT_FALSE(item("scroller")->property("interactive").toBool()) << "the notice needs no scrolling";
        machine.battery->powerSources = {{source}};
        sample();
        settle();
    }
}

TEST_F(HostileData, StaysReadableWhileEverySettingChanges) {
    machine.processor->ticks = std::vector<CoreTicks>(8);
    machine.sensor->cpuTemperature = 60;
    machine.sensor->fanSpeeds = {1200};
    for (const char16_t* key : {u"cpu", u"memory", u"network", u"disk", u"battery", u"sensor"}) {
        sample(2);
        ASSERT_NE(show(key), nullptr);
        changeEverySetting();
        settle();
        sample();
        expectEverythingCanBeRead();
    }
}

} // namespace
} // namespace orvelle
