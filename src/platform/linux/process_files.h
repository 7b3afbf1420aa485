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
