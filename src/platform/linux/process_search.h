#pragma once

#include "platform/linux/kept_file.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string_view>

namespace orvelle::linux_platform {

/// Where a sample looks for processes that are new since the sample before.
struct NewProcessSearch {
    bool wholeListing = false; ///< in the whole listing of `/proc`, which shows everything
    std::int32_t first = 0;    ///< else among the pids from this one
    std::int32_t last = 0;     ///< to this one, which is included

    bool operator==(const NewProcessSearch&) const = default;
};

/// Decides where to look. The kernel hands out pids in ascending order and wraps at the end, so that the
/// newest pid tells where the new processes are, if any. Asking the clock of a pid that no process has costs
/// a sixth of listing one process, and on a desktop, where threads come and go all the time, the newest pid
/// is different in nearly every sample.
class NewProcessSearchPlan {
public:
    /// Samples between two whole listings: they find what the newest pid does not tell, such as a process
    /// whose pid was chosen by its parent.
    static constexpr unsigned samplesPerListing = 10;
    /// A pid is handed out a moment before its process can be seen, so that the last few of the sample before
    /// are asked once more.
    static constexpr std::int32_t askedAgain = 8;

    /// `newestPid` is nothing when it cannot be told, `knownCount` how many processes are known.
    [[nodiscard]] NewProcessSearch next(std::optional<std::int32_t> newestPid, std::size_t knownCount);

private:
    unsigned m_sampleCount = 0;
    std::optional<std::int32_t> m_newestPid; ///< at the sample before
};

/// The newest pid that the kernel handed out, from `proc/loadavg`; threads count too.
class NewestPid {
public:
    explicit NewestPid(const std::filesystem::path& root);
    /// Nothing when it cannot be read or the file is not the kernel's own: some containers are given a
    /// made-up one in its place, whose last number may tell of another pid namespace or stand still.
    [[nodiscard]] std::optional<std::int32_t> read();

private:
    KeptFile m_loadAverages;
    bool m_isKernelFile;
};

/// The fifth field of `/proc/loadavg`; nothing when it is missing or no pid.
[[nodiscard]] std::optional<std::int32_t> parseNewestPid(std::string_view text);

} // namespace orvelle::linux_platform
