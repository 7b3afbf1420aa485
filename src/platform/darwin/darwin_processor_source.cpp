#include "platform/darwin/darwin_processor_source.h"

#include "platform/darwin/kernel_answers.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <sys/time.h>

namespace orvelle::darwin_platform {
namespace {

/// The counters are declared as signed numbers and counted as unsigned ones.
std::uint64_t ticksOf(integer_t counter) {
    return static_cast<natural_t>(counter);
}

CoreTicks coreTicks(const integer_t* counters) {
    return {.user = ticksOf(counters[CPU_STATE_USER]),
            .system = ticksOf(counters[CPU_STATE_SYSTEM]),
            .idle = ticksOf(counters[CPU_STATE_IDLE]),
            .nice = ticksOf(counters[CPU_STATE_NICE])};
}

} // namespace

std::optional<std::vector<CoreTicks>> DarwinProcessorSource::readTicks() {
    natural_t processorCount = 0;
    processor_info_array_t counters = nullptr;
    mach_msg_type_number_t wordCount = 0;
    const kern_return_t result =
        host_processor_info(m_host.get(), PROCESSOR_CPU_LOAD_INFO, &processorCount, &counters, &wordCount);
    if (result != KERN_SUCCESS || counters == nullptr)
        return std::nullopt;
    const OwnedPages pages(counters, wordCount * sizeof(integer_t));

    // Counters that are not there must not be read, and half of the processors would pass for all of them.
    if (wordCount / CPU_STATE_MAX < processorCount)
        return std::nullopt;
    std::vector<CoreTicks> cores;
    cores.reserve(processorCount);
    for (std::size_t core = 0; core < processorCount; ++core)
        cores.push_back(coreTicks(counters + core * CPU_STATE_MAX));
    return cores;
}

std::optional<std::array<double, 3>> DarwinProcessorSource::readLoadAverages() {
    std::array<double, 3> averages{};
    if (getloadavg(averages.data(), static_cast<int>(averages.size())) < 0)
        return std::nullopt;
    const bool isPlausible =
        std::ranges::all_of(averages, [](double average) { return std::isfinite(average) && average >= 0; });
    return isPlausible ? std::optional(averages) : std::nullopt;
}

std::optional<std::int64_t> DarwinProcessorSource::readBootTime() {
    static_assert(sizeof(timeval) == 16);
    const std::optional<timeval> bootTime = readSysctl<timeval>(CTL_KERN, KERN_BOOTTIME);
    return bootTime ? std::optional<std::int64_t>(bootTime->tv_sec) : std::nullopt;
}

} // namespace orvelle::darwin_platform
