#include "platform/host.h"
#include "platform/linux/linux_memory_source.h"
#include "platform/linux/linux_processor_source.h"

#include <unistd.h>

namespace orvelle {
namespace {

using namespace linux_platform;

/// Page size of a machine that is only a tree of files: it tells no other, and this is by far the most
/// common.
constexpr std::uint64_t usualPageSize = 4096;

std::uint64_t hostPageSize() {
    const long size = ::sysconf(_SC_PAGESIZE);
    return size > 0 ? static_cast<std::uint64_t>(size) : usualPageSize;
}

MachineSources makeSources(const std::filesystem::path& root, WallClock now, std::uint64_t pageSize) {
    return {.now = std::move(now),
            .processor = std::make_unique<LinuxProcessorSource>(root),
            .memory = std::make_unique<LinuxMemorySource>(root, pageSize)};
}

} // namespace

MachineSources makeTreeSources(const std::filesystem::path& root, WallClock now) {
    return makeSources(root, std::move(now), usualPageSize);
}

MachineSources makeHostSources() {
    return makeSources("/", std::chrono::system_clock::now, hostPageSize());
}

} // namespace orvelle
