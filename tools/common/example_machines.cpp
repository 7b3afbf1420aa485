#include "common/example_machines.h"

#include "core/system_monitor.h"
#include "platform/fixed/fixed_machine.h"

#include <algorithm>
#include <cstdlib>

namespace orvelle {
namespace {

constexpr std::uint64_t secondsPerCycle = 3;
constexpr std::uint64_t ticksPerCycle = 100 * secondsPerCycle;
constexpr std::uint64_t gigabyte = 1'000'000'000;

/// What one machine shows over time. Percentages; rates in bytes per second.
struct Character {
    int coreCount = 8;
    int cycles = 24;
    int calmPercent = 8; ///< of load at the least
    int swingPercent = 66;
    std::uint64_t usedMemoryPercent = 38;
    std::uint64_t downloadRate = 0;
    std::uint64_t uploadRate = 0;
    std::uint64_t readRate = 0;
    std::uint64_t writeRate = 0;
    bool hasVolume = true;
    std::uint64_t freeSpace = 212 * gigabyte;
    std::int64_t chargePercent = -1; ///< at the end; below 0 without a battery
    bool isCharging = false;
    int celsius = 0; ///< at the end; 0 without a sensor
};

Character characterOf(ExampleMachine machine) {
    switch (machine) {
    case ExampleMachine::laptop:
        return {.downloadRate = 1'840'000,
                .uploadRate = 96'000,
                .readRate = 5'200'000,
                .writeRate = 700,
                .chargePercent = 64,
                .celsius = 58};
    case ExampleMachine::loadedLaptop:
        return {.calmPercent = 100,
                .swingPercent = 0,
                .usedMemoryPercent = 100,
                .downloadRate = 113'000'000,
                .uploadRate = 110'600'000,
                .readRate = 2 * gigabyte,
                .writeRate = 900'000'000,
                .freeSpace = 0,
                .chargePercent = 100,
                .isCharging = true,
                .celsius = 112};
    case ExampleMachine::bareComputer:
        break;
    }
    return {.coreCount = 16, .cycles = 1, .usedMemoryPercent = 3, .hasVolume = false};
}

/// 0 to 100, rising and falling over `period` cycles. Whole numbers, so that it is the same everywhere.
int wave(int cycle, int period, int phase) {
    const int position = (cycle + phase) % period;
    return 100 - std::abs(2 * position - period) * 100 / period;
}

/// 0 to 100 without an obvious rhythm.
int liveliness(int cycle, int phase) {
    return (wave(cycle, 17, 3 * phase) * 2 + wave(cycle, 5, 2 * phase) + wave(cycle, 3, phase)) / 4;
}

std::uint64_t bytesInCycle(std::uint64_t rate, int cycle, int phase) {
    const auto share = 40 + static_cast<std::uint64_t>(liveliness(cycle, phase));
    return rate * secondsPerCycle * share / 100;
}

/// The sources of one machine, moved on cycle by cycle.
class Script {
public:
    explicit Script(const Character& character)
        : m_character(character)
        , m_ticks(static_cast<std::size_t>(character.coreCount))
        , m_interface{.name = "wlan0", .isUp = true, .ipv4Address = "192.168.1.20"} {}

    [[nodiscard]] MachineSources sources() { return m_machine.sources(); }

    void tell(int cycle) {
        m_machine.clock.advance(std::chrono::seconds(secondsPerCycle));
        tellProcessor(cycle);
        tellMemory(cycle);
        tellTraffic(cycle);
        tellBattery(cycle);
        if (m_character.celsius > 0)
            m_machine.sensor->cpuTemperature = m_character.celsius + (wave(cycle, 11, 0) - 55) / 5;
    }

private:
    void tellProcessor(int cycle) {
        for (int core = 0; core < m_character.coreCount; ++core) {
            // The cores share most of their work, so that their sum rises and falls too.
            const int activity = (2 * liveliness(cycle, 7) + liveliness(cycle, core)) / 3;
            const int load = m_character.calmPercent + m_character.swingPercent * activity / 100;
            const auto busy = static_cast<std::uint64_t>(std::min(load, 100)) * ticksPerCycle / 100;
            CoreTicks& ticks = m_ticks[static_cast<std::size_t>(core)];
            ticks.user += busy * 3 / 4;
            ticks.system += busy - busy * 3 / 4;
            ticks.idle += ticksPerCycle - busy;
        }
        m_machine.processor->ticks = m_ticks;
    }

    void tellMemory(int cycle) {
        constexpr std::uint64_t pageSize = 4096;
        constexpr std::uint64_t pages = 16 * gigabyte / pageSize;
        const auto swing = static_cast<std::uint64_t>(wave(cycle, 19, 0)) / 4;
        const std::uint64_t used =
            std::min<std::uint64_t>(100, m_character.usedMemoryPercent + swing) * pages / 100;
        m_machine.memory->reading = MemoryReading{.pageSize = pageSize,
                                                  .physicalMemory = pages * pageSize,
                                                  .freePages = pages - used,
                                                  .activePages = used / 2,
                                                  .wiredPages = used - used / 2};
    }

    void tellTraffic(int cycle) {
        m_interface.bytesIn += bytesInCycle(m_character.downloadRate, cycle, 1);
        m_interface.bytesOut += bytesInCycle(m_character.uploadRate, cycle, 4);
        m_machine.network->entries = {m_interface};
        m_disk.bytesRead += bytesInCycle(m_character.readRate, cycle, 2);
        m_disk.bytesWritten += bytesInCycle(m_character.writeRate, cycle, 5);
        m_machine.disk->counters = {m_disk};
        m_machine.disk->volumes.emplace();
        if (m_character.hasVolume)
            m_machine.disk->volumes->push_back(
                {.path = "/",
                 .isLocal = true,
                 .totalBytes = 512 * gigabyte,
                 .freeBytes = static_cast<std::int64_t>(m_character.freeSpace)});
    }

    void tellBattery(int cycle) {
        m_machine.battery->powerSources.emplace();
        if (m_character.chargePercent < 0)
            return;
        const int cyclesLeft = m_character.cycles - 1 - cycle;
        const std::int64_t drained = m_character.isCharging ? -cyclesLeft : cyclesLeft;
        m_machine.battery->powerSources->push_back(PowerSourceDescription{
            .currentCapacity = m_character.chargePercent + drained, .isCharging = m_character.isCharging});
    }

    Character m_character;
    FixedMachine m_machine;
    std::vector<CoreTicks> m_ticks;
    InterfaceEntry m_interface;
    DiskCounters m_disk;
};

} // namespace

std::unique_ptr<SystemMonitor> exampleMonitor(ExampleMachine machine, const SettingsStore& settings) {
    const Character character = characterOf(machine);
    Script script(character);
    auto monitor = std::make_unique<SystemMonitor>(script.sources(), settings);
    for (int cycle = 0; cycle < character.cycles; ++cycle) {
        script.tell(cycle);
        monitor->updateCycle();
    }
    return monitor;
}

} // namespace orvelle
