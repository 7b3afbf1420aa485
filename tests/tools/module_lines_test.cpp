#include "common/read_only_settings.h"
#include "core/system_monitor.h"
#include "platform/replay/fake_sources.h"
#include "probe/module_lines.h"
#include "settings/settings_store.h"

#include <gtest/gtest.h>

namespace orvelle {
namespace {

constexpr std::uint64_t gibibyte = std::uint64_t{1} << 30;

/// A machine whose sources a test fills before the monitors sample it.
class ModuleLines : public testing::Test {
protected:
    ModuleReport report(ModuleId module) {
        monitor.updateCycle();
        return moduleReport(module, monitor);
    }
    ModuleReport reportOfBattery(std::int64_t charge, bool isCharging, std::int64_t minutes) {
        machine.battery->powerSources = {
            PowerSourceDescription{.currentCapacity = charge,
                                   .isCharging = isCharging,
                                   .powerSourceState = isCharging ? PowerSourceDescription::externalPower
                                                                  : PowerSourceDescription::batteryPower,
                                   .isCharged = false,
                                   .timeToEmpty = minutes,
                                   .timeToFullCharge = minutes}};
        return report(ModuleId::battery);
    }

    const SettingsStore settings{std::make_unique<ReadOnlySettings>()};
    FakeMachine machine;
    SystemMonitor monitor{machine.sources(), settings};
};

ProcessRecord process(const char* name, std::uint64_t residentBytes) {
    ProcessRecord record;
    record.pid = static_cast<std::int32_t>(residentBytes);
    record.name = name;
    record.residentBytes = residentBytes;
    return record;
}

TEST_F(ModuleLines, TheProcessorTellsItsUsageAndLoad) {
    machine.processor->ticks = {{CoreTicks{.user = 0, .system = 0, .idle = 0, .nice = 0}}};
    monitor.updateCycle();
    machine.processor->ticks = {{CoreTicks{.user = 50, .system = 30, .idle = 20, .nice = 0}}};
    machine.processor->loadAverages = {{1.5, 0.75, 0.25}};
    const ModuleReport cpu = report(ModuleId::cpu);
    EXPECT_EQ(cpu.text, QStringLiteral("CPU 80%"));
    EXPECT_EQ(cpu.details, (QStringList{QStringLiteral("CPU 80% (user 50%, system 30%)"),
                                        QStringLiteral("  load 1.50  0.75  0.25")}));
    EXPECT_DOUBLE_EQ(*cpu.fraction, 0.8);
    EXPECT_EQ(cpu.severity, Severity::critical);
}

TEST_F(ModuleLines, NamesThatOthersChoseAreEscaped) {
    machine.memory->reading =
        MemoryReading{.pageSize = 4096, .physicalMemory = 4 * gibibyte, .activePages = 1000};
    machine.process->processes = {{process("<b>a&'\"\x1b", 3000), process("plain", 2000)}};
    const QStringList details = report(ModuleId::memory).details;
    EXPECT_EQ(details.last(), QStringLiteral("  &lt;b&gt;a&amp;&#39;&quot;\ufffd 2.9 KB, plain 2.0 KB"));
    machine.disk->volumes = {{MountedVolume{
        .path = "/media/x", .name = "</span>&", .isLocal = true, .totalBytes = 1000, .freeBytes = 500}}};
    EXPECT_TRUE(report(ModuleId::disk).details.last().startsWith(QLatin1String("  &lt;/span&gt;&amp;  50%")));
    machine.network->entries = {{InterfaceEntry{.name = "<i>", .isUp = true, .bytesIn = 1}}};
    EXPECT_TRUE(report(ModuleId::network).details.last().startsWith(QLatin1String("  &lt;i&gt;  ")));
}

TEST_F(ModuleLines, NamesFromTheRightKeepTheirPlaceBesideNumbers) {
    machine.process->processes = {{process("\u05e9\u05dc\u05d5\u05dd 12", 3000), process("plain", 2000)}};
    EXPECT_EQ(report(ModuleId::memory).details.last(),
              QStringLiteral("  \u2068\u05e9\u05dc\u05d5\u05dd 12\u2069 2.9 KB, plain 2.0 KB"));
}

TEST_F(ModuleLines, ALongNameIsCut) {
    machine.process->processes = {{process(std::string(500, 'x').c_str(), 3000)}};
    EXPECT_LT(report(ModuleId::memory).details.last().size(), 60);
}

TEST_F(ModuleLines, MemoryTellsItsSwapWhenItHasAny) {
    machine.memory->reading = MemoryReading{.pageSize = 4096,
                                            .physicalMemory = 4 * gibibyte,
                                            .activePages = gibibyte / 4096,
                                            .swapTotal = 2 * gibibyte,
                                            .swapUsed = gibibyte};
    const ModuleReport memory = report(ModuleId::memory);
    EXPECT_EQ(memory.text, QStringLiteral("MEM 25%"));
    EXPECT_EQ(memory.details, (QStringList{QStringLiteral("Memory 1.0 GB of 4.0 GB, pressure 25%"),
                                           QStringLiteral("  swap 1.0 GB of 2.0 GB")}));
    EXPECT_EQ(memory.severity, Severity::normal);
}

TEST_F(ModuleLines, TheDiskTellsHowFullTheFirstVolumeIs) {
    EXPECT_EQ(report(ModuleId::disk).text, QStringLiteral("DISK"));
    machine.disk->volumes = {
        {MountedVolume{.path = "/", .isLocal = true, .totalBytes = 1000, .freeBytes = 250}}};
    const ModuleReport disk = report(ModuleId::disk);
    EXPECT_EQ(disk.text, QStringLiteral("DISK 75%"));
    EXPECT_EQ(disk.severity, Severity::warning);
    EXPECT_EQ(disk.details.last(), QStringLiteral("  /  75%, 250 B free of 1000 B"));
}

TEST_F(ModuleLines, TheBatteryTellsItsStateAndTime) {
    const ModuleReport discharging = reportOfBattery(20, false, 125);
    EXPECT_EQ(discharging.text, QStringLiteral("BAT 20%"));
    EXPECT_EQ(discharging.details, QStringList{QStringLiteral("Battery 20%, on battery, 2:05 left")});
    EXPECT_EQ(discharging.severity, Severity::critical);
    const ModuleReport charging = reportOfBattery(20, true, 40);
    EXPECT_EQ(charging.text, QStringLiteral("BAT 20%+"));
    EXPECT_EQ(charging.details, QStringList{QStringLiteral("Battery 20%, charging, full in 0:40")});
    EXPECT_EQ(charging.severity, Severity::normal);
    EXPECT_EQ(reportOfBattery(20, true, -1).details, QStringList{QStringLiteral("Battery 20%, charging")});
}

TEST_F(ModuleLines, AMachineWithoutABatteryRunsOnMains) {
    const ModuleReport battery = report(ModuleId::battery);
    EXPECT_EQ(battery.text, QStringLiteral("AC"));
    EXPECT_FALSE(battery.fraction);
    EXPECT_EQ(battery.severity, Severity::normal);
}

TEST_F(ModuleLines, SensorsTellTheProcessorsTemperature) {
    EXPECT_EQ(report(ModuleId::sensor).text, QStringLiteral("--\u00b0C"));
    machine.sensor->cpuTemperature = 61;
    machine.sensor->gpuTemperature = 45;
    machine.sensor->fanSpeeds = {1200};
    const ModuleReport sensors = report(ModuleId::sensor);
    EXPECT_EQ(sensors.text, QStringLiteral("61\u00b0C"));
    EXPECT_EQ(sensors.details, (QStringList{QStringLiteral("Sensors CPU 61\u00b0C, GPU 45\u00b0C"),
                                            QStringLiteral("  fan 1  1200 rpm")}));
    EXPECT_EQ(sensors.severity, Severity::warning);
}

TEST_F(ModuleLines, EveryModuleOfAnEmptyMachineHasAText) {
    for (const ModuleInfo& module : moduleTable) {
        const ModuleReport empty = report(module.id);
        EXPECT_FALSE(empty.text.isEmpty()) << module.key.data();
        EXPECT_FALSE(empty.details.isEmpty()) << module.key.data();
        EXPECT_EQ(empty.severity, Severity::normal) << module.key.data();
    }
}

} // namespace
} // namespace orvelle
