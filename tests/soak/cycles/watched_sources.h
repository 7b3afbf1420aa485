#pragma once

#include "core/sources/machine_sources.h"

namespace orvelle::soak {

/// What the sources answered in the last update cycle.
struct Answers {
    std::optional<std::vector<CoreTicks>> ticks;
    std::optional<std::array<double, 3>> loadAverages;
    std::optional<std::int64_t> bootTime;
    std::optional<MemoryReading> memory;
    std::optional<std::vector<MountedVolume>> volumes;
    std::optional<std::vector<DiskCounters>> disks;
    std::optional<std::vector<InterfaceEntry>> interfaces;
    std::optional<std::vector<std::optional<PowerSourceDescription>>> powerSources;
    std::optional<double> cpuTemperature;
    std::optional<double> gpuTemperature;
    std::vector<NamedTemperature> sensors;
    std::vector<std::int64_t> fanSpeeds;
    std::optional<std::uint64_t> totalMemory;
    std::optional<std::span<const ProcessRecord>> processes;
    bool wereProcessesAsked = false;
};

/// Sources that answer as `sources` do and note each answer. `answers` must outlive them.
[[nodiscard]] MachineSources watched(MachineSources sources, Answers& answers);

} // namespace orvelle::soak
