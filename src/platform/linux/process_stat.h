#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace orvelle::linux_platform {

/// What `/proc/PID/stat` says of one process (Documentation/filesystems/proc.rst, table 1-4).
struct ProcessStat {
    std::string_view comm;           ///< the short name as the kernel has it: any bytes; points into the text
    char state = '?';                ///< R, S, D, Z and so on
    std::uint64_t flags = 0;         ///< the kernel's PF_ flags
    std::uint64_t userTicks = 0;     ///< of all threads, ended ones included
    std::uint64_t systemTicks = 0;   ///< likewise
    std::uint64_t threadCount = 0;   ///< 0 for a process that is just going away
    std::uint64_t startTime = 0;     ///< ticks after boot; together with the pid it names one process life
    std::uint64_t residentPages = 0; ///< 0 for a kernel thread

    bool operator==(const ProcessStat&) const = default;
};

/// Nothing when a field up to the resident pages is missing, malformed or cut off. The short name stands in
/// parentheses and may hold parentheses, blanks and line ends itself, so it ends at the last one.
[[nodiscard]] std::optional<ProcessStat> parseProcessStat(std::string_view text);

/// Whether the process still runs: it is no zombie and has not lost its task. One whose first thread has
/// ended while others go on shows the state of a zombie, yet runs.
[[nodiscard]] bool isRunning(const ProcessStat& stat);

/// Whether it is a thread of the kernel, which has no executable.
[[nodiscard]] bool isKernelThread(const ProcessStat& stat);

/// The name to show: the last component of the executable's path, without the mark that the kernel appends
/// when the file has been removed since; `comm` when there is no path. Made fit to be shown; U+FFFD when
/// `comm` has no character that is, and empty only when there is neither.
[[nodiscard]] std::string processName(std::string_view executablePath, std::string_view comm);

} // namespace orvelle::linux_platform
