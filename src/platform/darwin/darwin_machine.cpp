#include "platform/darwin/darwin_battery_source.h"
#include "platform/darwin/darwin_disk_source.h"
#include "platform/darwin/darwin_memory_source.h"
#include "platform/darwin/darwin_network_source.h"
#include "platform/darwin/darwin_process_source.h"
#include "platform/darwin/darwin_processor_source.h"
#include "platform/darwin/darwin_sensor_source.h"
#include "platform/host.h"

namespace orvelle {
namespace {

using namespace darwin_platform;

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

MachineSources makeHostSources() {
    MachineSources machine;
    machine.now = std::chrono::system_clock::now;
    machine.steadyNow =
        kernelClock(CLOCK_MONOTONIC); // on this system it counts while the machine sleeps, too
    machine.processor = std::make_unique<DarwinProcessorSource>();
    machine.memory = std::make_unique<DarwinMemorySource>();
    machine.disk = std::make_unique<DarwinDiskSource>();
    machine.network = std::make_unique<DarwinNetworkSource>();
    machine.battery = std::make_unique<DarwinBatterySource>();
    machine.sensor = std::make_unique<DarwinSensorSource>(makeSMCUserClient());
    machine.process = std::make_unique<DarwinProcessSource>();
    return machine;
}

/// This system keeps none of what the monitors ask for in files, so every tree is taken for an empty one.
MachineSources makeTreeSources(const std::filesystem::path&, WallClock now) {
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

} // namespace orvelle
