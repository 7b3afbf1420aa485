#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>

namespace orvelle {

inline constexpr std::uint64_t nanosecondsPerSecond = 1'000'000'000;

/// One process as it is now. Each time is at most `maximumNanoseconds`, so that their sums cannot overflow.
struct ProcessRecord {
    static constexpr std::uint64_t maximumNanoseconds = std::uint64_t{1} << 62; ///< 146 years
    static constexpr std::uint64_t maximumBytes = std::uint64_t{1} << 62;       ///< 4 EiB

    std::int32_t pid = 0;
    /// Last component of the executable's path, else the system's short name; valid UTF-8 on one line.
    /// Empty when the process is listed but could not be inspected: it is then left out, yet its earlier
    /// times stay known.
    std::string name;
    /// Processor time since the process began, in nanoseconds, by all its threads including ended ones. Where
    /// only the sum of both is known, all of it is user time.
    std::uint64_t userNanoseconds = 0;
    std::uint64_t systemNanoseconds = 0;
    std::uint64_t residentBytes = 0; ///< memory held, shared pages included; at most `maximumBytes`

    bool operator==(const ProcessRecord&) const = default;
};

/// What `ProcessMonitor` asks of an operating system.
class ProcessSource {
public:
    virtual ~ProcessSource() = default;

    /// Bytes of physical memory; nothing when unknown.
    [[nodiscard]] virtual std::optional<std::uint64_t> readTotalMemory() = 0;

    /// All processes in the order the system lists them, the reader itself included; nothing when they cannot
    /// be listed. The records belong to the source and stay valid until the next call: thousands of idle
    /// processes must not cost an allocation each in every sample.
    [[nodiscard]] virtual std::optional<std::span<const ProcessRecord>> readProcesses() = 0;
};

} // namespace orvelle
