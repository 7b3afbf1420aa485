#pragma once

#include <chrono>
#include <functional>
#include <time.h>

namespace orvelle {

using WallTime = std::chrono::system_clock::time_point;

/// Tells the wall-clock time. It may step in either direction, as a real clock does; a monitor that divides
/// by elapsed time asks twice and guards against an elapsed time of zero or less.
using WallClock = std::function<WallTime()>;

/// Seconds from `earlier` to `later`; negative when the clock was set back in between.
[[nodiscard]] inline double secondsBetween(WallTime earlier, WallTime later) {
    return std::chrono::duration<double>(later - earlier).count();
}

/// A clock of the kernel that nobody sets, for measuring only: its moments are no dates. Empty if the kernel
/// does not have it.
[[nodiscard]] inline WallClock kernelClock(clockid_t clock) {
    timespec ignored{};
    if (::clock_gettime(clock, &ignored) != 0)
        return {};
    return [clock] {
        timespec time{};
        ::clock_gettime(clock, &time);
        const auto sinceItsStart = std::chrono::seconds(time.tv_sec) + std::chrono::nanoseconds(time.tv_nsec);
        return WallTime{std::chrono::duration_cast<WallTime::duration>(sinceItsStart)};
    };
}

} // namespace orvelle
