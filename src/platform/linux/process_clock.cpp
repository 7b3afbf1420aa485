#include "platform/linux/process_clock.h"

#include "core/sources/process_source.h"
#include "platform/linux/files.h"
#include "platform/linux/text.h"

#include <ctime>
#include <unistd.h>

namespace orvelle::linux_platform {
namespace {

/// How the kernel numbers CPU clocks (include/linux/posix-timers_types.h): the pid inverted, then two bits,
/// of which the value 2 means time as the scheduler counts it.
clockid_t clockOf(std::int32_t pid) {
    constexpr std::uint32_t schedulerClock = 2;
    return static_cast<clockid_t>((~static_cast<std::uint32_t>(pid) << 3U) | schedulerClock);
}

} // namespace

std::optional<std::uint64_t> readProcessClock(std::int32_t pid) {
    if (pid <= 0 || pid > largestPid)
        return std::nullopt;
    timespec time{};
    if (::clock_gettime(clockOf(pid), &time) != 0 || time.tv_sec < 0)
        return std::nullopt;
    return saturatingAdd(saturatingMultiply(static_cast<std::uint64_t>(time.tv_sec), nanosecondsPerSecond),
                         static_cast<std::uint64_t>(time.tv_nsec));
}

bool clocksTellOfListedProcesses(const std::filesystem::path& root) {
    if (root != "/")
        return false;
    const std::int32_t ownPid = ::getpid();
    const std::optional<std::string> status = readFile(root / "proc/self/status");
    return status && showsOwnNamespace(*status, ownPid) && readProcessClock(ownPid).has_value();
}

bool showsOwnNamespace(std::string_view status, std::int32_t ownPid) {
    while (!status.empty()) {
        std::string_view line = takeLine(status);
        if (takeUntil(line, ':') != "NSpid")
            continue;
        return takeNumber<std::int32_t>(line) == ownPid && takeWord(line).empty();
    }
    return false;
}

} // namespace orvelle::linux_platform
