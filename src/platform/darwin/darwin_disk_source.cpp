#include "platform/darwin/darwin_disk_source.h"

#include "platform/darwin/mounted_volumes.h"
#include "platform/darwin/properties.h"
#include "platform/darwin/registry.h"

namespace orvelle::darwin_platform {
namespace {

std::uint64_t counterIn(CFDictionaryRef statistics, CFStringRef key) {
    const std::optional<std::int64_t> count = integerIn(statistics, key);
    return count && *count >= 0 ? static_cast<std::uint64_t>(*count) : 0;
}

std::optional<DiskCounters> countersOf(const OwnedIOObject& driver) {
    const CFOwned<CFDictionaryRef> properties = copyProperties(driver);
    const CFDictionaryRef statistics =
        properties ? dictionaryIn(properties.get(), CFSTR("Statistics")) : nullptr;
    if (statistics == nullptr)
        return std::nullopt;
    return DiskCounters{.bytesRead = counterIn(statistics, CFSTR("Bytes (Read)")),
                        .bytesWritten = counterIn(statistics, CFSTR("Bytes (Write)"))};
}

} // namespace

std::optional<std::vector<MountedVolume>> DarwinDiskSource::readVolumes() {
    return readMountedVolumes();
}

std::optional<std::vector<DiskCounters>> DarwinDiskSource::readCounters() {
    const std::optional<OwnedIOObject> drivers = findServices("IOBlockStorageDriver");
    if (!drivers)
        return std::nullopt;
    std::vector<DiskCounters> disks;
    while (const OwnedIOObject driver{IOIteratorNext(drivers->get())}) {
        if (const std::optional<DiskCounters> counters = countersOf(driver))
            disks.push_back(*counters);
    }
    return disks;
}

} // namespace orvelle::darwin_platform
