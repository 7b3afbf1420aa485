#include "platform/darwin/darwin_battery_source.h"
#include "platform/darwin/darwin_disk_source.h"
#include "platform/darwin/darwin_memory_source.h"
#include "platform/darwin/darwin_network_source.h"
#include "platform/darwin/darwin_process_source.h"
#include "platform/darwin/darwin_processor_source.h"
#include "platform/darwin/darwin_sensor_source.h"
#include "platform/darwin/empty_machine.h"
#include "platform/host.h"

namespace orvelle {

using namespace darwin_platform;

MachineSources makeHostSources() {
    MachineSources machine;
    machine.now = std::chrono::system_clock::now;
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
    return makeEmptyMachine(std::move(now));
}

} // namespace orvelle
