#include "common/scripted_machine.h"

#include "common/counter.h"

namespace orvelle::soak {
namespace {

constexpr std::uint64_t samplesPerNoAnswer = 300;

/// The sums of all interfaces and disks stay within 64 bits.
constexpr std::uint64_t largestByteCount = std::uint64_t{1} << 57;
constexpr std::uint64_t nanosecondsPerSample = 3'000'000'000;

/// Adds a part, or removes one, or neither. `least` and `most` bound how many there are.
template <class Parts, class Make>
void comeAndGo(Parts& parts, std::size_t least, std::size_t most, Random& random, Make make) {
    if (random.oneIn(samplesPerArrival) && parts.size() < most)
        parts.insert(parts.begin() + static_cast<std::ptrdiff_t>(random.upTo(parts.size())), make());
    if (random.oneIn(samplesPerArrival) && parts.size() > least)
        parts.erase(parts.begin() + static_cast<std::ptrdiff_t>(random.upTo(parts.size() - 1)));
}

/// The value, or rarely nothing.
template <class Value>
std::optional<Value> unlessSilent(const Value& value, Random& random) {
    return random.oneIn(samplesPerNoAnswer) ? std::nullopt : std::optional(value);
}

std::int64_t signedUpTo(std::uint64_t last, Random& random) {
    return static_cast<std::int64_t>(random.upTo(last));
}

InterfaceEntry newInterface(Random& random) {
    InterfaceEntry entry{.name = random.name("veth"), .isUp = true};
    entry.bytesIn = random.oneIn(4) ? random.upTo(largestByteCount) : 0;
    entry.isLoopback = random.oneIn(20);
    if (random.oneIn(3))
        entry.ipv4Address = "192.0.2." + std::to_string(random.upTo(255));
    return entry;
}

} // namespace

MachineSources ScriptedMachine::sources() {
    MachineSources sources = m_machine.sources();
    sources.now = [this] { return clocks.wall; };
    if (m_clock == Clock::steadyToo)
        sources.steadyNow = [this] { return clocks.steady; };
    reset();
    return sources;
}

void ScriptedMachine::reset() {
    m_state = {};
    m_state.cores.resize(4);
    m_state.disks = {{.bytesRead = 1'000'000, .bytesWritten = 1'000'000}};
    m_state.interfaces = {{.name = "lo", .isUp = true, .isLoopback = true}, {.name = "eth0", .isUp = true}};
    m_state.volumes = {
        {.path = "/", .name = "root", .isLocal = true, .totalBytes = 1 << 30, .freeBytes = 1 << 20}};
    for (std::int32_t pid = 1; pid <= 100; ++pid)
        m_state.processes.push_back({.pid = pid, .name = "process " + std::to_string(pid)});
    m_machine.process->totalMemory = std::uint64_t{16} << 30;
}

void ScriptedMachine::change(Random& random) {
    clocks.goOn(random);
    changeProcessors(random);
    changeMemory(random);
    changeDisks(random);
    changeInterfaces(random);
    changeProcesses(random);
    changePacks(random);
    changeSensors(random);
}

void ScriptedMachine::changeProcessors(Random& random) {
    comeAndGo(m_state.cores, 1, 16, random, [] { return CoreTicks{}; });
    for (CoreTicks& core : m_state.cores) {
        for (std::uint64_t* ticks : {&core.user, &core.system, &core.idle, &core.nice})
            *ticks = countedOn(*ticks, ticksPerSample, CoreTicks::maximumTicks, random);
    }
    m_machine.processor->ticks = unlessSilent(m_state.cores, random);
    const double load = static_cast<double>(random.upTo(random.oneIn(100) ? 1'000'000'000 : 200)) / 100;
    m_machine.processor->loadAverages = unlessSilent(std::array{load, load / 2, load / 3}, random);
    // The kernel moves the time of the start with the wall clock. Some containers answer a time of their own.
    const double now = secondsBetween(WallTime{}, clocks.wall);
    const double started = random.oneIn(50) ? now + 100 : now - static_cast<double>(random.upTo(1'000'000));
    m_machine.processor->bootTime = unlessSilent(static_cast<std::int64_t>(started), random);
}

void ScriptedMachine::changeMemory(Random& random) {
    const std::uint64_t total = std::uint64_t{1} << random.between(18, 30);
    MemoryReading reading{.pageSize = 4096, .physicalMemory = static_cast<std::int64_t>(total * 4096)};
    reading.activePages = random.upTo(total);
    reading.inactivePages = random.upTo(total - reading.activePages);
    reading.wiredPages = random.upTo(total);
    reading.compressorPages = random.upTo(total);
    const std::uint64_t held =
        reading.activePages + reading.inactivePages + reading.wiredPages + reading.compressorPages;
    reading.externalPages = std::min(random.upTo(held / 2), total / 2);
    reading.purgeablePages =
        held / 2 > reading.externalPages ? random.upTo(held / 2 - reading.externalPages) : 0;
    // Memory that is used is cut at the total, and the cache never exceeds it.
    if (reading.externalPages + reading.purgeablePages > total / 2)
        reading.purgeablePages = 0;
    reading.swapTotal = random.upTo(UINT64_MAX);
    reading.swapUsed = random.upTo(reading.swapTotal);
    m_machine.memory->reading = unlessSilent(reading, random);
}

void ScriptedMachine::changeDisks(Random& random) {
    comeAndGo(m_state.disks, 0, 8, random, [&random] {
        return DiskCounters{.bytesRead = random.oneIn(2) ? random.upTo(largestByteCount) : 0};
    });
    for (DiskCounters& disk : m_state.disks) {
        disk.bytesRead = countedOn(disk.bytesRead, bytesPerSample, largestByteCount, random);
        disk.bytesWritten = countedOn(disk.bytesWritten, bytesPerSample, largestByteCount, random);
    }
    m_machine.disk->counters = unlessSilent(m_state.disks, random);

    comeAndGo(m_state.volumes, 0, 12, random, [&random] {
        return MountedVolume{.path = random.name("/media/"), .isLocal = !random.oneIn(5)};
    });
    for (MountedVolume& volume : m_state.volumes) {
        volume.totalBytes = signedUpTo(random.oneIn(20) ? INT64_MAX : 1'000'000'000, random);
        volume.freeBytes = signedUpTo(static_cast<std::uint64_t>(volume.totalBytes), random);
    }
    m_machine.disk->volumes = unlessSilent(m_state.volumes, random);
}

void ScriptedMachine::changeInterfaces(Random& random) {
    comeAndGo(m_state.interfaces, 0, 24, random, [&random] { return newInterface(random); });
    for (InterfaceEntry& entry : m_state.interfaces) {
        entry.bytesIn = countedOn(entry.bytesIn, bytesPerSample, largestByteCount, random);
        entry.bytesOut = countedOn(entry.bytesOut, bytesPerSample, largestByteCount, random);
        if (random.oneIn(100))
            entry.isUp = !entry.isUp;
        if (random.oneIn(500))
            entry.name = random.name("renamed");
    }
    m_machine.network->entries = unlessSilent(m_state.interfaces, random);
}

void ScriptedMachine::changeProcesses(Random& random) {
    constexpr std::uint64_t largestPid = INT32_MAX;
    // A pid is in use once. The list ascends, because that is how systems list.
    for (std::uint64_t arrivals = random.upTo(3); arrivals > 0; --arrivals) {
        const auto pid = static_cast<std::int32_t>(random.upTo(random.oneIn(50) ? largestPid : 4000));
        const auto place = std::ranges::lower_bound(m_state.processes, pid, {}, &ProcessRecord::pid);
        if (place != m_state.processes.end() && place->pid == pid)
            *place = {.pid = pid, .name = "reused"};
        else
            m_state.processes.insert(place, {.pid = pid, .name = random.name("new ")});
    }
    while (m_state.processes.size() > 150 || (random.oneIn(2) && !m_state.processes.empty()))
        m_state.processes.erase(m_state.processes.begin() +
                                static_cast<std::ptrdiff_t>(random.upTo(m_state.processes.size() - 1)));
    for (int count = 0; count < 10 && !m_state.processes.empty(); ++count) {
        ProcessRecord& process = random.oneOf(m_state.processes);
        constexpr std::uint64_t longest = ProcessRecord::maximumNanoseconds;
        process.userNanoseconds = countedOn(process.userNanoseconds, nanosecondsPerSample, longest, random);
        process.systemNanoseconds =
            countedOn(process.systemNanoseconds, nanosecondsPerSample, longest, random);
        process.residentBytes = random.upTo(random.oneIn(100) ? ProcessRecord::maximumBytes : 1'000'000'000);
        if (random.oneIn(50))
            process.name = random.oneIn(3) ? "" : random.name("renamed ");
    }
    m_machine.process->processes = unlessSilent(m_state.processes, random);
}

void ScriptedMachine::changePacks(Random& random) {
    comeAndGo(m_state.packs, 0, 3, random, [] { return PowerSourceDescription{}; });
    for (auto& pack : m_state.packs) {
        pack.reset();
        if (random.oneIn(30))
            continue;
        pack.emplace();
        pack->currentCapacity = unlessSilent(signedUpTo(100, random), random);
        pack->isCharging = unlessSilent(random.oneIn(2), random);
        pack->powerSourceState = random.oneIn(2) ? "AC Power" : "Battery Power";
        pack->timeToEmpty = signedUpTo(6000, random) - 1;
    }
    m_machine.battery->powerSources = unlessSilent(m_state.packs, random);
    SmartBatteryProperties properties{.cycleCount = signedUpTo(1'000'000'000, random)};
    properties.designCapacity = signedUpTo(10'000, random);
    properties.rawMaxCapacity = unlessSilent(signedUpTo(10'000, random), random);
    properties.voltage = unlessSilent(signedUpTo(1'000'000'000, random), random);
    properties.amperage = unlessSilent(signedUpTo(2'000'000'000, random) - 1'000'000'000, random);
    properties.temperature = unlessSilent(signedUpTo(20'000, random) - 5000, random);
    m_machine.battery->smartBattery = unlessSilent(properties, random);
}

void ScriptedMachine::changeSensors(Random& random) {
    comeAndGo(m_state.sensors, 0, 20, random, [&random] {
        return NamedTemperature{.key = random.name("key "), .name = random.name("sensor ")};
    });
    for (NamedTemperature& sensor : m_state.sensors)
        sensor.value = static_cast<double>(random.between(1, 149'999)) / 1000;
    comeAndGo(m_state.fans, 0, 6, random, [] { return std::int64_t{1}; });
    for (std::int64_t& fan : m_state.fans)
        fan = 1 + signedUpTo(maximumFanSpeed - 1, random);
    m_machine.sensor->sensors = m_state.sensors;
    m_machine.sensor->fanSpeeds = m_state.fans;
    const double degrees = static_cast<double>(random.between(1, 149)) + 0.5;
    m_machine.sensor->cpuTemperature = random.oneIn(5) ? std::nullopt : std::optional(degrees);
    m_machine.sensor->gpuTemperature = random.oneIn(2) ? std::nullopt : std::optional(degrees / 2);
}

} // namespace orvelle::soak
