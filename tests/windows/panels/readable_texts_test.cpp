#include "support/text_places.h"
#include "windows/panels/panel_fixture.h"

namespace orvelle {
namespace {

constexpr std::uint64_t oneGibibyte = std::uint64_t{1} << 30;

// ctest also runs these with wider and narrower fonts.
class ReadableTexts : public PanelFixture {
protected:
    ReadableTexts() {
        machine.processor->loadAverages = {128.25, 127.75, 126.5};
        machine.processor->bootTime = FakeClock::replayStartSeconds - 364 * 86400 - 23 * 3600 - 59 * 60;
        machine.processor->ticks = std::vector<CoreTicks>(128);
        machine.memory->reading = MemoryReading{.pageSize = 4096,
                                                .physicalMemory = 1000 * oneGibibyte,
                                                .freePages = 4 * oneGibibyte / 4096,
                                                .activePages = 240 * oneGibibyte / 4096,
                                                .inactivePages = 500 * oneGibibyte / 4096,
                                                .wiredPages = 200 * oneGibibyte / 4096,
                                                .compressorPages = 120 * oneGibibyte / 4096,
                                                .externalPages = 400 * oneGibibyte / 4096,
                                                .swapTotal = 1000 * oneGibibyte,
                                                .swapUsed = 999 * oneGibibyte};
        machine.process->totalMemory = 1000 * oneGibibyte;
        machine.process->processes = {
            {.pid = 1, .name = "firefox", .residentBytes = 800 * oneGibibyte},
            {.pid = 2, .name = "plasmashell", .residentBytes = 1000 * oneGibibyte / 1024},
            {.pid = 3, .name = "Xorg", .residentBytes = oneGibibyte / 2}};
        machine.network->entries = {{.name = "en0",
                                     .isUp = true,
                                     .ipv4Address = "192.168.188.200",
                                     .ipv6Address = "2001:db8:1234:5678:9abc:def0:1234:5678"},
                                    {.name = "wlp0s20f3", .isUp = true, .ipv4Address = "192.168.188.201"}};
        machine.disk->volumes = {{.path = "/",
                                  .name = "Root",
                                  .isLocal = true,
                                  .totalBytes = 1000 * std::int64_t{oneGibibyte},
                                  .freeBytes = 500 * std::int64_t{oneGibibyte}},
                                 {.path = "/media/backup", .name = "Backup of the year", .isLocal = true}};
        machine.disk->counters = {DiskCounters{}};
        describeBattery(false);
        machine.sensor->cpuTemperature = machine.sensor->gpuTemperature = 104;
        machine.sensor->sensors = {{.key = "a", .name = "Package id 0", .value = 104}};
        machine.sensor->fanSpeeds = {12'000, 800};
        settings.setUseFahrenheit(true);
        for (int cycle = 0; cycle < 7; ++cycle) { // every third cycle samples processes
            work();
            sample();
        }
    }

    void describeBattery(bool isCharged) {
        machine.battery->powerSources = {
            {PowerSourceDescription{.currentCapacity = 100,
                                    .isCharging = !isCharged,
                                    .powerSourceState = PowerSourceDescription::externalPower,
                                    .isCharged = isCharged,
                                    .timeToFullCharge = 1199}}};
        machine.battery->smartBattery = SmartBatteryProperties{.cycleCount = 10'000,
                                                               .designCapacity = 100'000,
                                                               .rawMaxCapacity = 100'000,
                                                               .temperature = 6050,
                                                               .voltage = 120'000,
                                                               .amperage = 10'000};
    }

    /// Raises every counter by the most that the panels have room for.
    void work() {
        for (CoreTicks& core : *machine.processor->ticks)
            core.user += 300;
        for (ProcessRecord& process : *machine.process->processes)
            process.userNanoseconds += 384 * nanosecondsPerSecond;
        for (InterfaceEntry& entry : *machine.network->entries) {
            entry.bytesIn += 3000 * oneGibibyte;
            entry.bytesOut += 3000 * oneGibibyte;
        }
        machine.disk->counters->front().bytesRead += 3000 * oneGibibyte;
        machine.disk->counters->front().bytesWritten += 3000 * oneGibibyte;
    }

    void expectReadable(const char16_t* key) {
        ASSERT_NE(show(key), nullptr);
        SCOPED_TRACE(QString::fromUtf16(key).toStdString());
        expectReadableTexts(*panel->contentItem());
        for (const QQuickItem* text : shownTextsIn(*panel->contentItem()))
            EXPECT_EQ(shownSizeOf(*text), text->property("font").value<QFont>().pixelSize())
                << wordsOf(*text);
        spreadLetters(*panel->contentItem(), 115); // as in a still wider font
        settle();
        expectReadableTexts(*panel->contentItem(), {QStringLiteral("plasmashell")});
        for (const QQuickItem* text : shownTextsIn(*panel->contentItem()))
            EXPECT_GE(shownSizeOf(*text), 8) << wordsOf(*text);
    }
};

TEST_F(ReadableTexts, AreWrittenInTheFontOfThisRun) {
    expectTheFontsOfThisRun();
}

TEST_F(ReadableTexts, AreNeitherCutNorCoveredInAnyPanel) {
    for (const char16_t* key : {u"cpu", u"memory", u"network", u"disk", u"battery", u"sensor"})
        expectReadable(key);
}

TEST_F(ReadableTexts, IncludeTheWidestValuesOfABusyMachine) {
    ASSERT_NE(show(u"cpu"), nullptr);
    EXPECT_TRUE(shows(u"100.0%") && shows(u"800.0%"));
    ASSERT_NE(show(u"network"), nullptr);
    EXPECT_TRUE(shows(u"2000.0 GB/s") && shows(u"\u2193 1000.0 GB/s"));
    ASSERT_NE(show(u"disk"), nullptr);
    EXPECT_TRUE(shows(u"1000.0 GB/s"));
    ASSERT_NE(show(u"memory"), nullptr);
    EXPECT_TRUE(shows(u"1000.0 MB"));
}

TEST_F(ReadableTexts, AreNeitherCutNorCoveredWithoutBatteryAndSensors) {
    machine.battery->powerSources.emplace();
    machine.sensor->sensors.clear();
    machine.sensor->fanSpeeds.clear();
    sample();
    expectReadable(u"battery");
    expectReadable(u"sensor");
}

TEST_F(ReadableTexts, SayThatTheBatteryIsFull) {
    describeBattery(true);
    sample();
    expectReadable(u"battery");
    EXPECT_TRUE(shows(u"Fully Charged"));
}

} // namespace
} // namespace orvelle
