#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string_view>

namespace orvelle::linux_platform {

/// No kernel hands out a larger pid (PID_MAX_LIMIT).
inline constexpr std::int32_t largestPid = 1 << 22;

/// Processor time in nanoseconds that all threads of a process have used, ended ones included: the process's
/// CPU clock (clock_getcpuclockid(3)), which any user may read and which costs a tenth of reading its `stat`.
/// Nothing when there is no such process, or when `pid` is a thread of one. Pids that no
/// kernel hands out are never asked: their bits would name another's clock, and 0 the caller's own.
[[nodiscard]] std::optional<std::uint64_t> readProcessClock(std::int32_t pid);

/// Whether `readProcessClock` can be asked about the pids that `root/proc` lists: `root` is that of the
/// running system, its kernel has process clocks, and its `/proc` shows the pid namespace that this program
/// lives in. In a namespace whose `/proc` was mounted outside of it, the clocks would be those of other
/// processes.
[[nodiscard]] bool clocksTellOfListedProcesses(const std::filesystem::path& root);

/// Whether `proc/self/status` shows the reader under `ownPid` in one pid namespace only, its own: the line
/// `NSpid` has one number per namespace from that of the `/proc` mount down to the reader's.
[[nodiscard]] bool showsOwnNamespace(std::string_view status, std::int32_t ownPid);

} // namespace orvelle::linux_platform
