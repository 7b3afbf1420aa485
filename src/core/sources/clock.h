#pragma once

#include <chrono>
#include <functional>

namespace orvelle {

using WallTime = std::chrono::system_clock::time_point;

/// Tells the wall-clock time. It may step in either direction, as a real clock does; a monitor that divides
/// by elapsed time asks twice and guards against an elapsed time of zero or less.
using WallClock = std::function<WallTime()>;

/// Seconds from `earlier` to `later`; negative when the clock was set back in between.
[[nodiscard]] inline double secondsBetween(WallTime earlier, WallTime later) {
    return std::chrono::duration<double>(later - earlier).count();
}

} // namespace orvelle
