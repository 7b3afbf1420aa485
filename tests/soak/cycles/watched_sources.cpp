#include "watched_sources.h"

namespace orvelle::soak {
namespace {

/// A source that asks another and notes what it answers.
template <class Interface>
class Watched : public Interface {
public:
    Watched(std::unique_ptr<Interface> source, Answers& answers)
        : m_source(std::move(source))
        , m_answers(answers) {}

protected:
    [[nodiscard]] Interface& source() { return *m_source; }
    [[nodiscard]] Answers& noted() { return m_answers; }

private:
    std::unique_ptr<Interface> m_source;
    Answers& m_answers;
};

class WatchedProcessor final : public Watched<ProcessorSource> {
public:
    using Watched::Watched;

    std::optional<std::vector<CoreTicks>> readTicks() override {
        return noted().ticks = source().readTicks();
    }
    std::optional<std::array<double, 3>> readLoadAverages() override {
        return noted().loadAverages = source().readLoadAverages();
    }
    std::optional<std::int64_t> readBootTime() override { return noted().bootTime = source().readBootTime(); }
};

class WatchedMemory final : public Watched<MemorySource> {
public:
    using Watched::Watched;

    std::optional<MemoryReading> read() override { return noted().memory = source().read(); }
};

class WatchedDisk final : public Watched<DiskSource> {
public:
    using Watched::Watched;

    std::optional<std::vector<MountedVolume>> readVolumes() override {
        return noted().volumes = source().readVolumes();
    }
    std::optional<std::vector<DiskCounters>> readCounters() override {
        return noted().disks = source().readCounters();
    }
};

class WatchedNetwork final : public Watched<NetworkSource> {
public:
    using Watched::Watched;

    std::optional<std::vector<InterfaceEntry>> read() override {
        return noted().interfaces = source().read();
    }
};

class WatchedBattery final : public Watched<BatterySource> {
public:
    using Watched::Watched;

    std::optional<std::vector<std::optional<PowerSourceDescription>>> readPowerSources() override {
        return noted().powerSources = source().readPowerSources();
    }
    std::optional<SmartBatteryProperties> readSmartBattery() override { return source().readSmartBattery(); }
};

class WatchedSensor final : public Watched<SensorSource> {
public:
    using Watched::Watched;

    std::optional<double> readCPUTemperature() override {
        return noted().cpuTemperature = source().readCPUTemperature();
    }
    std::optional<double> readGPUTemperature() override {
        return noted().gpuTemperature = source().readGPUTemperature();
    }
    std::vector<NamedTemperature> readSensors() override { return noted().sensors = source().readSensors(); }
    std::vector<std::int64_t> readFanSpeeds() override {
        return noted().fanSpeeds = source().readFanSpeeds();
    }
};

class WatchedProcess final : public Watched<ProcessSource> {
public:
    using Watched::Watched;

    std::optional<std::uint64_t> readTotalMemory() override {
        return noted().totalMemory = source().readTotalMemory();
    }
    std::optional<std::span<const ProcessRecord>> readProcesses() override {
        noted().wereProcessesAsked = true;
        return noted().processes = source().readProcesses();
    }
};

} // namespace

MachineSources watched(MachineSources sources, Answers& answers) {
    MachineSources all = std::move(sources);
    all.processor = std::make_unique<WatchedProcessor>(std::move(all.processor), answers);
    all.memory = std::make_unique<WatchedMemory>(std::move(all.memory), answers);
    all.disk = std::make_unique<WatchedDisk>(std::move(all.disk), answers);
    all.network = std::make_unique<WatchedNetwork>(std::move(all.network), answers);
    all.battery = std::make_unique<WatchedBattery>(std::move(all.battery), answers);
    all.sensor = std::make_unique<WatchedSensor>(std::move(all.sensor), answers);
    all.process = std::make_unique<WatchedProcess>(std::move(all.process), answers);
    return all;
}

} // namespace orvelle::soak
