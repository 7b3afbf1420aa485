#pragma once

#include "core/sources/machine_sources.h"

namespace orvelle {

/// A clock that stands still until it is advanced.
class FakeClock {
public:
    /// 2026-01-01 00:00:00 UTC, where every replay begins.
    static constexpr std::int64_t replayStartSeconds = 1767225600;

    [[nodiscard]] WallClock reader() const {
        return [time = m_time] { return *time; };
    }
    void advance(std::chrono::duration<double> step) {
        *m_time += std::chrono::duration_cast<WallTime::duration>(step);
    }

private:
    std::shared_ptr<WallTime> m_time = std::make_shared<WallTime>(std::chrono::seconds(replayStartSeconds));
};

/// Answers the values of its fields, for tests, snapshots and replays.
class FakeProcessorSource final : public ProcessorSource {
public:
    std::optional<std::vector<CoreTicks>> ticks;
    std::optional<std::array<double, 3>> loadAverages;
    std::optional<std::int64_t> bootTime;

    [[nodiscard]] std::optional<std::vector<CoreTicks>> readTicks() override { return ticks; }
    [[nodiscard]] std::optional<std::array<double, 3>> readLoadAverages() override { return loadAverages; }
    [[nodiscard]] std::optional<std::int64_t> readBootTime() override { return bootTime; }
};

class FakeMemorySource final : public MemorySource {
public:
    std::optional<MemoryReading> reading;

    [[nodiscard]] std::optional<MemoryReading> read() override { return reading; }
};

class FakeProcessSource final : public ProcessSource {
public:
    std::optional<std::uint64_t> totalMemory;
    std::optional<std::vector<ProcessRecord>> processes;

    [[nodiscard]] std::optional<std::uint64_t> readTotalMemory() override { return totalMemory; }
    [[nodiscard]] std::optional<std::span<const ProcessRecord>> readProcesses() override { return processes; }
};

class FakeBatterySource final : public BatterySource {
public:
    std::optional<std::vector<std::optional<PowerSourceDescription>>> powerSources;
    std::optional<SmartBatteryProperties> smartBattery;

    [[nodiscard]] std::optional<std::vector<std::optional<PowerSourceDescription>>>
    readPowerSources() override {
        return powerSources;
    }
    [[nodiscard]] std::optional<SmartBatteryProperties> readSmartBattery() override { return smartBattery; }
};

class FakeSensorSource final : public SensorSource {
public:
    std::optional<double> cpuTemperature;
    std::optional<double> gpuTemperature;
    std::vector<NamedTemperature> sensors;
    std::vector<std::int64_t> fanSpeeds;

    [[nodiscard]] std::optional<double> readCPUTemperature() override { return cpuTemperature; }
    [[nodiscard]] std::optional<double> readGPUTemperature() override { return gpuTemperature; }
    [[nodiscard]] std::vector<NamedTemperature> readSensors() override { return sensors; }
    [[nodiscard]] std::vector<std::int64_t> readFanSpeeds() override { return fanSpeeds; }
};

class FakeDiskSource final : public DiskSource {
public:
    std::optional<std::vector<MountedVolume>> volumes;
    std::optional<std::vector<DiskCounters>> counters;

    [[nodiscard]] std::optional<std::vector<MountedVolume>> readVolumes() override { return volumes; }
    [[nodiscard]] std::optional<std::vector<DiskCounters>> readCounters() override { return counters; }
};

class FakeNetworkSource final : public NetworkSource {
public:
    std::optional<std::vector<InterfaceEntry>> entries;

    [[nodiscard]] std::optional<std::vector<InterfaceEntry>> read() override { return entries; }
};

/// A machine of fixed sources. Its members stay usable after `sources()` handed them to a `SystemMonitor`,
/// for as long as that monitor lives.
class FakeMachine {
public:
    FakeClock clock;
    FakeProcessorSource* processor = nullptr;
    FakeMemorySource* memory = nullptr;
    FakeDiskSource* disk = nullptr;
    FakeNetworkSource* network = nullptr;
    FakeBatterySource* battery = nullptr;
    FakeSensorSource* sensor = nullptr;
    FakeProcessSource* process = nullptr;

    [[nodiscard]] MachineSources sources() {
        return {.now = clock.reader(),
                .processor = make(processor),
                .memory = make(memory),
                .disk = make(disk),
                .network = make(network),
                .battery = make(battery),
                .sensor = make(sensor),
                .process = make(process)};
    }

private:
    template <class Source>
    static std::unique_ptr<Source> make(Source*& observer) {
        auto source = std::make_unique<Source>();
        observer = source.get();
        return source;
    }
};

} // namespace orvelle
