#include "platform/darwin/darwin_memory_source.h"

#include "platform/darwin/kernel_answers.h"

#include <algorithm>
#include <cstddef>
#include <mach/vm_page_size.h>

namespace orvelle::darwin_platform {
namespace {

/// The record has grown over the releases. `HOST_VM_INFO64_COUNT` is its size in the headers at hand, the
/// kernel answers with the size that it fills, and this is the least that holds every counter used here.
constexpr mach_msg_type_number_t leastWordCount =
    (offsetof(vm_statistics64_data_t, external_page_count) + sizeof(natural_t)) / sizeof(integer_t);

std::optional<vm_statistics64_data_t> readStatistics(host_t host) {
    vm_statistics64_data_t statistics{};
    mach_msg_type_number_t wordCount = HOST_VM_INFO64_COUNT;
    const kern_return_t result =
        host_statistics64(host, HOST_VM_INFO64, reinterpret_cast<host_info64_t>(&statistics), &wordCount);
    if (result != KERN_SUCCESS || wordCount < leastWordCount)
        return std::nullopt;
    return statistics;
}

/// The most pages that may count as cache: used memory is what is held less the cache, at most the machine's
/// memory, and the cache is taken off it once more.
std::uint64_t mostCachedPages(const MemoryReading& reading) {
    const std::uint64_t heldPages =
        reading.activePages + reading.inactivePages + reading.wiredPages + reading.compressorPages;
    const std::uint64_t half = heldPages / 2;
    if (reading.physicalMemory <= 0 || reading.pageSize == 0)
        return half;
    return std::min(half, static_cast<std::uint64_t>(reading.physicalMemory) / reading.pageSize);
}

void cutCache(MemoryReading& reading) {
    const std::uint64_t most = mostCachedPages(reading);
    reading.purgeablePages = std::min(reading.purgeablePages, most);
    reading.externalPages = std::min(reading.externalPages, most - reading.purgeablePages);
}

} // namespace

std::optional<MemoryReading> DarwinMemorySource::read() {
    MemoryReading reading;
    reading.pageSize = vm_kernel_page_size;
    reading.physicalMemory = readSysctl<std::int64_t>(CTL_HW, HW_MEMSIZE).value_or(0);
    const std::optional<vm_statistics64_data_t> statistics = readStatistics(m_host.get());
    if (!statistics || reading.physicalMemory < 0)
        return std::nullopt;
    reading.freePages = statistics->free_count;
    reading.activePages = statistics->active_count;
    reading.inactivePages = statistics->inactive_count;
    reading.wiredPages = statistics->wire_count;
    reading.compressorPages = statistics->compressor_page_count;
    reading.purgeablePages = statistics->purgeable_count;
    reading.externalPages = statistics->external_page_count;
    cutCache(reading);

    static_assert(sizeof(xsw_usage) == 32);
    const xsw_usage swap = readSysctl<xsw_usage>(CTL_VM, VM_SWAPUSAGE).value_or(xsw_usage{});
    reading.swapTotal = swap.xsu_total;
    reading.swapUsed = std::min(swap.xsu_used, swap.xsu_total);
    return reading;
}

} // namespace orvelle::darwin_platform
