#pragma once

#include "core/sources/processor_source.h"
#include "platform/linux/kept_file.h"

namespace orvelle::linux_platform {

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
