#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

namespace orvelle {

/// Cumulative time of one core since boot, in the operating system's clock ticks.
/// The four states are disjoint. A counter never exceeds `maximumTicks`, so that sums of them cannot
/// overflow.
struct CoreTicks {
    static constexpr std::uint64_t maximumTicks = std::uint64_t{1} << 61;

    std::uint64_t user = 0;
    std::uint64_t system = 0;
    std::uint64_t idle = 0;
    std::uint64_t nice = 0;

    bool operator==(const CoreTicks&) const = default;
};

/// What `CPUMonitor` asks of an operating system.
class ProcessorSource {
public:
    virtual ~ProcessorSource() = default;

    /// One entry per core that the system lists now, in its order; nothing when the counters cannot be read.
    [[nodiscard]] virtual std::optional<std::vector<CoreTicks>> readTicks() = 0;

    /// The 1-, 5- and 15-minute load averages, finite and at least 0; nothing when they cannot be read.
    [[nodiscard]] virtual std::optional<std::array<double, 3>> readLoadAverages() = 0;

    /// Boot time in whole seconds since 1970-01-01 UTC; nothing when it cannot be read.
    [[nodiscard]] virtual std::optional<std::int64_t> readBootTime() = 0;
};

} // namespace orvelle
