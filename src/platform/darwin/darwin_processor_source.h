#pragma once

#include "core/sources/processor_source.h"
#include "platform/darwin/system_objects.h"

namespace orvelle::darwin_platform {

/// Answers from the host's processor statistics, the load averages and {CTL_KERN, KERN_BOOTTIME}.
class DarwinProcessorSource final : public ProcessorSource {
public:
    /// The four counters of each processor in the kernel's order. They have 32 bits: at 100 ticks a second a
    /// state begins anew at 0 after 497 days.
    [[nodiscard]] std::optional<std::vector<CoreTicks>> readTicks() override;
    /// An average that the system leaves out is 0.
    [[nodiscard]] std::optional<std::array<double, 3>> readLoadAverages() override;
    [[nodiscard]] std::optional<std::int64_t> readBootTime() override;

private:
    /// Kept, because each `mach_host_self` adds a reference that has to be given back.
    OwnedPort m_host{mach_host_self()};
};

} // namespace orvelle::darwin_platform
