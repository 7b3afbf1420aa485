#pragma once

#include "core/sources/process_source.h"

#include <string_view>
#include <vector>

namespace orvelle::darwin_platform {

/// What follows the last slash, slashes at the end left aside; "/" when there is nothing else.
[[nodiscard]] std::string_view lastPathComponent(std::string_view path);

/// Answers from libproc and {CTL_HW, HW_MEMSIZE}. A process of another user, which only a privileged program
/// may inspect, has an empty name, as has one that ended meanwhile. The times pass as the system counts them,
/// cut at the bounds of the record. The lists are reused, so that a sample allocates only for new names.
class DarwinProcessSource final : public ProcessSource {
public:
    [[nodiscard]] std::optional<std::uint64_t> readTotalMemory() override;
    /// The kernel itself, which is process 0, is left out.
    [[nodiscard]] std::optional<std::span<const ProcessRecord>> readProcesses() override;

private:
    [[nodiscard]] std::span<const std::int32_t> listProcesses();

    std::vector<std::int32_t> m_pids;
    std::vector<ProcessRecord> m_records; ///< may be longer than the present list
};

} // namespace orvelle::darwin_platform
