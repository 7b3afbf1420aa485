#pragma once

#include "core/sources/battery_source.h"
#include "core/sources/clock.h"
#include "core/sources/disk_source.h"
#include "core/sources/memory_source.h"
#include "core/sources/network_source.h"
#include "core/sources/process_source.h"
#include "core/sources/processor_source.h"
#include "core/sources/sensor_source.h"

#include <memory>

namespace orvelle {

/// One source for each question that the monitors ask of a machine, and its clock. None is null once the
/// machine is made.
struct MachineSources {
    WallClock now;
    /// A clock that nobody sets, for the time between two samples. It goes on while the machine sleeps, as
    /// `now` does. Empty where there is none: `now` then serves for both.
    WallClock steadyNow = nullptr;
    std::unique_ptr<ProcessorSource> processor = nullptr;
    std::unique_ptr<MemorySource> memory = nullptr;
    std::unique_ptr<DiskSource> disk = nullptr;
    std::unique_ptr<NetworkSource> network = nullptr;
    std::unique_ptr<BatterySource> battery = nullptr;
    std::unique_ptr<SensorSource> sensor = nullptr;
    std::unique_ptr<ProcessSource> process = nullptr;
};

} // namespace orvelle
