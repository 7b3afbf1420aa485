#pragma once

#include "core/sources/processor_source.h"
#include "platform/linux/files.h"

#include <string_view>

namespace orvelle::linux_platform {

/// What `/proc/stat` says (Documentation/filesystems/proc.rst, "Miscellaneous kernel statistics").
struct ProcStat {
    /// The cores that are online now, in the kernel's order; never empty.
    std::vector<CoreTicks> cores;
    /// The `btime` line: seconds since 1970 at boot.
    std::optional<std::int64_t> bootTime;
};

/// Nothing when the text has no line of a core: that is a failed read, not a machine without cores.
/// Guest time is contained in user and guest_nice in nice, so neither is added again.
[[nodiscard]] std::optional<ProcStat> parseProcStat(std::string_view text);

/// The three averages of `/proc/loadavg`; nothing when one is missing or is not a finite number of 0 or more.
[[nodiscard]] std::optional<std::array<double, 3>> parseLoadAverages(std::string_view text);

/// Answers from `proc/stat` and `proc/loadavg` under a root directory.
class LinuxProcessorSource final : public ProcessorSource {
public:
    explicit LinuxProcessorSource(const std::filesystem::path& root);

    [[nodiscard]] std::optional<std::vector<CoreTicks>> readTicks() override;
    [[nodiscard]] std::optional<std::array<double, 3>> readLoadAverages() override;
    /// Answered from the text that `readTicks` read last, since both stand in one file.
    [[nodiscard]] std::optional<std::int64_t> readBootTime() override { return m_bootTime; }

private:
    KeptFile m_stat;
    KeptFile m_loadAverages;
    std::optional<std::int64_t> m_bootTime;
};

} // namespace orvelle::linux_platform
