#pragma once

#include "core/sources/battery_source.h"
#include "core/sources/clock.h"
#include "core/sources/disk_source.h"
#include "core/sources/memory_source.h"
#include "core/sources/network_source.h"
#include "core/sources/process_source.h"
#include "core/sources/processor_source.h"
#include "core/sources/sensor_source.h"
#include "core/sources/smc_user_client.h"

#include <memory>

namespace orvelle {

/// Everything that the monitors ask of one machine, and its clock.
struct MachineSources {
    WallClock now;
    std::unique_ptr<ProcessorSource> processor = nullptr;
    std::unique_ptr<MemorySource> memory = nullptr;
    std::unique_ptr<DiskSource> disk = nullptr;
    std::unique_ptr<NetworkSource> network = nullptr;
    std::unique_ptr<BatterySource> battery = nullptr;
    /// Empty on a machine whose sensors are behind a System Management Controller: `smcUserClient` then leads
    /// to them.
    std::unique_ptr<SensorSource> sensor = nullptr;
    std::unique_ptr<SMCUserClient> smcUserClient = nullptr;
    std::unique_ptr<ProcessSource> process = nullptr;
};

} // namespace orvelle
