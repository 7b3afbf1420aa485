#include "common/example_script.h"

#include <algorithm>
#include <cstdlib>

namespace orvelle {
namespace {

constexpr std::uint64_t secondsPerCycle = 3;
constexpr std::uint64_t ticksPerCycle = 100 * secondsPerCycle;
constexpr std::uint64_t mebibyte = std::uint64_t{1} << 20;
constexpr std::uint64_t pageSize = 4096;

/// 0 to 100, rising and falling over `period` cycles.
int wave(int cycle, int period, int phase) {
    const int position = (cycle + phase) % period;
    return 100 - std::abs(2 * position - period) * 100 / period;
}

/// 0 to 100 without an obvious rhythm.
int liveliness(int cycle, int phase) {
    return (wave(cycle, 17, 3 * phase) * 2 + wave(cycle, 5, 2 * phase) + wave(cycle, 3, phase)) / 4;
}

std::uint64_t bytesInCycle(std::uint64_t rate, int cycle, int phase) {
    const int burst = wave(cycle, 13, 5 * phase) > 70 ? 35 : 0;
    const auto share = static_cast<std::uint64_t>(std::max(10 + liveliness(cycle, phase) + burst, 0));
    return rate * secondsPerCycle * share / 100;
}

} // namespace

ExampleScript::ExampleScript(ExampleCharacter character)
    : m_character(std::move(character))
    , m_ticks(static_cast<std::size_t>(m_character.coreCount)) {}

MachineSources ExampleScript::sources() {
    MachineSources sources = m_machine.sources();
    tellConstants();
    return sources;
}

void ExampleScript::tellConstants() {
    m_machine.process->totalMemory = m_character.memory.gibibytes * 1024 * mebibyte;
    m_machine.processor->loadAverages = m_character.loadAverages;
    m_machine.disk->volumes = m_character.volumes;
    m_machine.sensor->sensors = m_character.sensors;
    m_machine.sensor->fanSpeeds = m_character.fanSpeeds;
}

void ExampleScript::tell(int cycle) {
    m_machine.clock.advance(std::chrono::seconds(secondsPerCycle));
    tellProcessor(cycle);
    tellMemory(cycle);
    tellNetwork(cycle);
    tellDisk(cycle);
    tellBattery(cycle);
    tellSensors(cycle);
    tellProcesses();
}

int ExampleScript::climbed(int whole, int cycle) const {
    return whole * (cycle + 1) / m_character.cycles;
}

void ExampleScript::tellProcessor(int cycle) {
    for (int core = 0; core < m_character.coreCount; ++core) {
        // The cores rise and fall together, so that their sum does too, and some do more than others.
        const int activity = (2 * liveliness(cycle, 7) + liveliness(cycle, core)) / 3;
        const int share = 30 + 18 * (5 * core % 8);
        const int load = m_character.calmPercent + m_character.swingPercent * activity * share / 10'000 +
                         climbed(m_character.climbPercent, cycle);
        const auto busy = static_cast<std::uint64_t>(std::min(load, 100)) * ticksPerCycle / 100;
        CoreTicks& ticks = m_ticks[static_cast<std::size_t>(core)];
        ticks.user += busy * 3 / 4;
        ticks.system += busy - busy * 3 / 4;
        ticks.idle += ticksPerCycle - busy;
    }
    m_machine.processor->ticks = m_ticks;
    m_machine.processor->bootTime = FakeClock::replayStartSeconds - m_character.uptimeSeconds;
}

void ExampleScript::tellMemory(int cycle) {
    const ExampleMemory& memory = m_character.memory;
    const std::uint64_t bytes = memory.gibibytes * 1024 * mebibyte;
    const std::uint64_t all = bytes / pageSize;
    const auto pages = [all](std::uint64_t percent) { return all * percent / 100; };
    const int level = (2 * wave(cycle, 19, 4) + liveliness(cycle, 3)) / 3;
    const auto swing = memory.activeSwing * static_cast<std::uint64_t>(level) / 100;
    const auto climb = static_cast<std::uint64_t>(climbed(m_character.climbPercent, cycle)) / 3;
    const std::uint64_t others = memory.wired + memory.inactive + memory.compressed;
    const std::uint64_t held = std::min(memory.active + swing + climb + others, std::uint64_t{100});
    const std::uint64_t freePages = all - pages(held);
    m_machine.memory->reading = MemoryReading{.pageSize = pageSize,
                                              .physicalMemory = static_cast<std::int64_t>(bytes),
                                              .freePages = freePages,
                                              .activePages = all - freePages - pages(memory.inactive) -
                                                             pages(memory.wired) - pages(memory.compressed),
                                              .inactivePages = pages(memory.inactive),
                                              .wiredPages = pages(memory.wired),
                                              .compressorPages = pages(memory.compressed),
                                              .externalPages = pages(memory.cached),
                                              .swapTotal = memory.swapTotalMebibytes * mebibyte,
                                              .swapUsed = memory.swapUsedMebibytes * mebibyte};
}

void ExampleScript::tellNetwork(int cycle) {
    m_machine.network->entries.emplace();
    int phase = 1;
    for (ExampleInterface& interface : m_character.interfaces) {
        interface.entry.bytesIn += bytesInCycle(interface.downloadRate, cycle, phase);
        interface.entry.bytesOut += bytesInCycle(interface.uploadRate, cycle, phase + 3);
        m_machine.network->entries->push_back(interface.entry);
        ++phase;
    }
}

void ExampleScript::tellDisk(int cycle) {
    m_disk.bytesRead += bytesInCycle(m_character.readRate, cycle, 2);
    m_disk.bytesWritten += bytesInCycle(m_character.writeRate, cycle, 5);
    m_machine.disk->counters = {m_disk};
}

/// A battery that charges has only charged; one that is used was being charged until a while ago.
void ExampleScript::tellBattery(int cycle) {
    constexpr int cyclesOfUse = 40;
    const int left = cyclesLeft(cycle);
    m_machine.battery->powerSources.emplace();
    for (PowerSourceDescription description : m_character.powerSources) {
        const int change = description.isCharging.value_or(false) ? -left * 9 / 10
                           : left <= cyclesOfUse                  ? left * 3 / 4
                                                                  : cyclesOfUse * 7 / 4 - left;
        description.currentCapacity = description.currentCapacity.value_or(0) + change;
        m_machine.battery->powerSources->emplace_back(description);
    }
    m_machine.battery->smartBattery = m_character.smartBattery;
}

void ExampleScript::tellSensors(int cycle) {
    // At the end the temperatures are those of the character.
    const auto temperature = [&](int celsius, int period) -> std::optional<double> {
        if (celsius == 0)
            return std::nullopt;
        const auto level = [&](int at) { return 2 * wave(at, period, 0) + liveliness(at, period); };
        const int swing = (level(cycle) - level(m_character.cycles - 1)) / 6;
        return celsius + swing + climbed(m_character.climbPercent, cycle) / 2 - m_character.climbPercent / 2;
    };
    m_machine.sensor->cpuTemperature = temperature(m_character.cpuCelsius, 11);
    m_machine.sensor->gpuTemperature = temperature(m_character.gpuCelsius, 23);
}

void ExampleScript::tellProcesses() {
    constexpr std::uint64_t nanosecondsPerPercent = nanosecondsPerSecond / 100;
    std::vector<ProcessRecord> records =
        m_machine.process->processes.value_or(std::vector<ProcessRecord>(m_character.processes.size()));
    for (std::size_t index = 0; index < records.size(); ++index) {
        const ExampleProcess& process = m_character.processes[index];
        const std::uint64_t spent = process.cpuPercent * secondsPerCycle * nanosecondsPerPercent;
        records[index].pid = static_cast<std::int32_t>(1000 + index);
        records[index].name = process.name;
        records[index].userNanoseconds += spent * 3 / 4;
        records[index].systemNanoseconds += spent - spent * 3 / 4;
        records[index].residentBytes = process.mebibytes * mebibyte;
    }
    m_machine.process->processes = std::move(records);
}

} // namespace orvelle
