#pragma once

#include "common/example_machines.h"
#include "core/sources/battery_source.h"
#include "core/sources/disk_source.h"
#include "core/sources/network_source.h"
#include "core/sources/sensor_source.h"

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace orvelle {

/// Memory in percent of what there is; the rest is free.
struct ExampleMemory {
    std::uint64_t gibibytes = 16;
    std::uint64_t wired = 3;
    std::uint64_t active = 0;
    std::uint64_t activeSwing = 0; ///< by how much the active part rises and falls
    std::uint64_t inactive = 0;
    std::uint64_t compressed = 0;
    std::uint64_t cached = 0; ///< files, within the active and the inactive part
    std::uint64_t swapTotalMebibytes = 0;
    std::uint64_t swapUsedMebibytes = 0;
};

/// An interface and what it carries at the most.
struct ExampleInterface {
    InterfaceEntry entry;
    std::uint64_t downloadRate = 0; ///< bytes per second
    std::uint64_t uploadRate = 0;
};

/// A process and what it takes at the most.
struct ExampleProcess {
    std::string name;
    std::uint64_t cpuPercent = 0; ///< of one core
    std::uint64_t mebibytes = 0;  ///< resident
};

/// What one example machine is and does.
struct ExampleCharacter {
    int coreCount = 8;
    int cycles = 61;     ///< a history of 60 speeds needs one more sample before it
    int calmPercent = 4; ///< load at the least
    int swingPercent = 0;
    int climbPercent = 0; ///< by how much load, temperatures and memory have risen at the end
    std::array<double, 3> loadAverages{};
    std::int64_t uptimeSeconds = 0;
    ExampleMemory memory{};
    std::vector<ExampleInterface> interfaces{};
    std::uint64_t readRate = 0; ///< bytes per second
    std::uint64_t writeRate = 0;
    std::vector<MountedVolume> volumes{};
    std::vector<PowerSourceDescription> powerSources{}; ///< with the charge at the end
    SmartBatteryProperties smartBattery{};
    int cpuCelsius = 0; ///< at the end; 0 without a sensor
    int gpuCelsius = 0;
    std::vector<NamedTemperature> sensors{};
    std::vector<std::int64_t> fanSpeeds{};
    std::vector<ExampleProcess> processes{};
};

[[nodiscard]] ExampleCharacter exampleCharacter(ExampleMachine machine);

} // namespace orvelle
