#include "parsers.h"
#include "platform/linux/linux_memory_source.h"
#include "platform/linux/linux_processor_source.h"
#include "require.h"

#include <cmath>

namespace orvelle::fuzz {
namespace {

using namespace linux_platform;

constexpr std::uint64_t maximumBytes = std::uint64_t{1} << 62;

void requireConsistent(const MemoryReading& reading) {
    const auto total = static_cast<std::uint64_t>(reading.physicalMemory);
    require(reading.physicalMemory > 0 && total <= maximumBytes, "there is a plausible amount of memory");
    const std::uint64_t totalPages = total / reading.pageSize;
    const std::uint64_t held =
        reading.activePages + reading.inactivePages + reading.wiredPages + reading.compressorPages;
    require(held <= totalPages, "what is held fits into memory");
    require(reading.freePages <= totalPages - held, "all parts fit into memory");
    const std::uint64_t cached = reading.purgeablePages + reading.externalPages;
    require(cached <= totalPages && held >= 2 * cached, "the cache can be taken off twice");
    require(reading.swapUsed <= reading.swapTotal, "no more swap is used than there is");
}

void checkReadings(const Meminfo& meminfo, const MemoryBesideMeminfo& beside) {
    for (const std::uint64_t pageSize : {4096U, 16384U, 65536U})
        requireConsistent(memoryReading(meminfo, beside, pageSize));
}

/// A machine of 16 GiB that is half used.
constexpr Meminfo usualMachine{.total = std::uint64_t{16} << 30,
                               .free = std::uint64_t{4} << 30,
                               .activeAnonymous = std::uint64_t{6} << 30,
                               .activeFile = std::uint64_t{5} << 30,
                               .unevictable = std::uint64_t{1} << 30};

} // namespace

void fuzzMeminfo(std::string_view text) {
    const std::optional<Meminfo> meminfo = parseMeminfo(text);
    if (!meminfo)
        return;
    checkReadings(*meminfo, {});
    checkReadings(*meminfo, {.arcSize = meminfo->activeAnonymous,
                             .arcMinimum = meminfo->inactiveFile,
                             .zramPools = meminfo->swapFree});
}

void fuzzArcStatistics(std::string_view text) {
    const MemoryBesideMeminfo beside = parseArcStatistics(text);
    require(beside.arcSize <= maximumBytes && beside.arcMinimum <= maximumBytes, "sizes are bounded");
    checkReadings(usualMachine, beside);
}

void fuzzZramStatistics(std::string_view text) {
    const std::uint64_t used = parseZramMemoryUsed(text);
    require(used <= maximumBytes, "the size is bounded");
    checkReadings(usualMachine, {.zramPools = used});
}

void fuzzProcStat(std::string_view text) {
    const std::optional<ProcStat> stat = parseProcStat(text);
    if (!stat)
        return;
    require(!stat->cores.empty(), "a machine has a core");
    for (const CoreTicks& core : stat->cores) {
        for (const std::uint64_t ticks : {core.user, core.system, core.idle, core.nice})
            require(ticks <= CoreTicks::maximumTicks, "ticks are bounded");
    }
}

void fuzzLoadAverages(std::string_view text) {
    if (const auto averages = parseLoadAverages(text)) {
        for (const double average : *averages)
            require(std::isfinite(average) && average >= 0, "an average is a number of 0 or more");
    }
}

} // namespace orvelle::fuzz
