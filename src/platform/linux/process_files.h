#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <dirent.h>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

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

/// The files of the processes in a `proc` directory. Only the directory itself stays open: one descriptor per
/// process would exhaust what a program may hold. Texts point into one buffer and stay valid until the next
/// call.
class ProcessFiles {
public:
    explicit ProcessFiles(const std::filesystem::path& root);

    /// Whether the directory is there; tried again at each call until it is.
    [[nodiscard]] bool open();
    /// The pids listed now, ascending; empty when the directory cannot be read. Call `open` first.
    [[nodiscard]] const std::vector<std::int32_t>& list();
    /// The text of `PID/stat`; nothing when the process is gone or hidden.
    [[nodiscard]] std::optional<std::string_view> readStat(std::int32_t pid);
    /// The target of `PID/exe`; nothing for a kernel thread and for a process of someone else, whose link an
    /// ordinary user may not read.
    [[nodiscard]] std::optional<std::string_view> readExecutablePath(std::int32_t pid);

private:
    struct CloseDirectory {
        void operator()(DIR* directory) const { ::closedir(directory); }
    };

    std::string m_path;
    std::unique_ptr<DIR, CloseDirectory> m_directory;
    int m_descriptor = -1; ///< of the directory, which owns it
    std::vector<std::int32_t> m_listed;
    std::array<char, 4096> m_buffer{}; ///< a stat line needs some 400 bytes; no path of a link is longer
};

} // namespace orvelle::linux_platform
