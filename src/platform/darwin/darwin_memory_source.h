#pragma once

#include "core/sources/memory_source.h"
#include "platform/darwin/system_objects.h"

namespace orvelle::darwin_platform {

/// Answers from the host's virtual-memory statistics, {CTL_HW, HW_MEMSIZE} and {CTL_VM, VM_SWAPUSAGE}.
///
/// The kernel counts a file-backed page in the cache and also among the active or inactive pages, so on a
/// machine that keeps most of its memory for files the cache can be more than the pressure rule may subtract.
/// What is too much of it is left out, file-backed pages before purgeable ones. The other counters are handed
/// over as the kernel gives them.
class DarwinMemorySource final : public MemorySource {
public:
    /// Physical memory and swap are 0 where only they cannot be read; nothing when the page counters cannot,
    /// or for a memory size below 0.
    [[nodiscard]] std::optional<MemoryReading> read() override;

private:
    /// Kept, because each `mach_host_self` adds a reference that has to be given back.
    OwnedPort m_host{mach_host_self()};
};

} // namespace orvelle::darwin_platform
