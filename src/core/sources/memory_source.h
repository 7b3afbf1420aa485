#pragma once

#include <cstdint>
#include <optional>

namespace orvelle {

/// One reading of physical memory and swap.
///
/// A source guarantees `active + inactive + wired + compressor >= 2 * (purgeable + external)` or, failing
/// that, that the system it reads cannot reach it, because the pressure rule subtracts the cache twice.
struct MemoryReading {
    std::uint64_t pageSize = 0;      ///< bytes per page
    std::int64_t physicalMemory = 0; ///< bytes of physical memory, 0 when unknown
    std::uint64_t freePages = 0;
    std::uint64_t activePages = 0;
    std::uint64_t inactivePages = 0;
    std::uint64_t wiredPages = 0;      ///< pages that can be neither moved out nor given back
    std::uint64_t compressorPages = 0; ///< pages that hold compressed memory
    std::uint64_t purgeablePages = 0;  ///< pages whose owner lets the system drop them
    std::uint64_t externalPages = 0;   ///< file-backed pages, contained in active and inactive
    std::uint64_t swapTotal = 0;       ///< bytes
    std::uint64_t swapUsed = 0;        ///< bytes, at most `swapTotal`

    bool operator==(const MemoryReading&) const = default;
};

/// What `MemoryMonitor` asks of an operating system.
class MemorySource {
public:
    virtual ~MemorySource() = default;

    /// The present state of memory; nothing when the system's counters cannot be read.
    [[nodiscard]] virtual std::optional<MemoryReading> read() = 0;
};

} // namespace orvelle
