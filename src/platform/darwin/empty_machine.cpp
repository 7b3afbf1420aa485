#include "platform/darwin/empty_machine.h"

namespace orvelle::darwin_platform {
namespace {

class NoProcessors final : public ProcessorSource {
    std::optional<std::vector<CoreTicks>> readTicks() override { return std::nullopt; }
    std::optional<std::array<double, 3>> readLoadAverages() override { return std::nullopt; }
    std::optional<std::int64_t> readBootTime() override { return std::nullopt; }
};

class NoMemory final : public MemorySource {
    std::optional<MemoryReading> read() override { return std::nullopt; }
};

class NoDisks final : public DiskSource {
    std::optional<std::vector<MountedVolume>> readVolumes() override { return std::nullopt; }
    std::optional<std::vector<DiskCounters>> readCounters() override { return std::nullopt; }
};

class NoInterfaces final : public NetworkSource {
    std::optional<std::vector<InterfaceEntry>> read() override { return std::nullopt; }
};

class NoBattery final : public BatterySource {
    std::optional<std::vector<std::optional<PowerSourceDescription>>> readPowerSources() override {
        return std::nullopt;
    }
    std::optional<SmartBatteryProperties> readSmartBattery() override { return std::nullopt; }
};

class NoSensors final : public SensorSource {
    std::optional<double> readCPUTemperature() override { return std::nullopt; }
    std::optional<double> readGPUTemperature() override { return std::nullopt; }
    std::vector<NamedTemperature> readSensors() override { return {}; }
    std::vector<std::int64_t> readFanSpeeds() override { return {}; }
};

class NoProcesses final : public ProcessSource {
    std::optional<std::uint64_t> readTotalMemory() override { return std::nullopt; }
    std::optional<std::span<const ProcessRecord>> readProcesses() override { return std::nullopt; }
};

} // namespace

MachineSources makeEmptyMachine(WallClock now) {
    MachineSources machine;
    machine.now = std::move(now);
    machine.processor = std::make_unique<NoProcessors>();
    machine.memory = std::make_unique<NoMemory>();
    machine.disk = std::make_unique<NoDisks>();
    machine.network = std::make_unique<NoInterfaces>();
    machine.battery = std::make_unique<NoBattery>();
    machine.sensor = std::make_unique<NoSensors>();
    machine.process = std::make_unique<NoProcesses>();
    return machine;
}

} // namespace orvelle::darwin_platform
