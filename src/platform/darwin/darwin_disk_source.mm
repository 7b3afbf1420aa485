#include "platform/darwin/darwin_disk_source.h"

#include "platform/darwin/system_objects.h"
#include "platform/readable_name.h"
#include "settings/release_pool.h"

#include <Foundation/Foundation.h>

#include <algorithm>
#include <array>
#include <functional>

// Compiled with manual reference counting.
namespace orvelle::darwin_platform {
namespace {

NSNumber* numberIn(NSDictionary* values, NSString* key) {
    const id value = [values objectForKey:key];
    return [value isKindOfClass:[NSNumber class]] ? value : nil;
}

std::optional<std::string> stringIn(NSDictionary* values, NSString* key) {
    const id value = [values objectForKey:key];
    const char* const text = [value isKindOfClass:[NSString class]] ? [value UTF8String] : nullptr;
    return text != nullptr ? std::optional<std::string>(readableName(text)) : std::nullopt;
}

/// The bytes that the system would delete for a file of the user. A file system other than the system's own
/// answers 0 for what is available to such a file.
std::int64_t askForPurgeableBytes(NSURL* url, std::int64_t available) {
    const id key = NSURLVolumeAvailableCapacityForImportantUsageKey;
    NSDictionary* const values = [url resourceValuesForKeys:[NSArray arrayWithObjects:&key count:1]
                                                      error:nullptr];
    const std::int64_t important = [numberIn(values, key) longLongValue];
    return important > available ? important - std::max<std::int64_t>(available, 0) : 0;
}

std::optional<MountedVolume> mountedVolume(NSURL* url, NSArray* keys, PurgeableSpace& purgeable) {
    NSDictionary* const values = [url resourceValuesForKeys:keys error:nullptr];
    const char* const path = [[url path] UTF8String];
    if (values == nil || path == nullptr)
        return std::nullopt;
    // What is absent answers 0 and false, as every message to nil does.
    MountedVolume volume;
    volume.path = readableName(path);
    volume.name = stringIn(values, NSURLVolumeNameKey);
    volume.isLocal = [numberIn(values, NSURLVolumeIsLocalKey) boolValue];
    volume.totalBytes =
        std::max<std::int64_t>([numberIn(values, NSURLVolumeTotalCapacityKey) longLongValue], 0);
    const std::int64_t available = [numberIn(values, NSURLVolumeAvailableCapacityKey) longLongValue];
    std::int64_t purgeableBytes = 0;
    if (volume.isLocal && volume.totalBytes > 0)
        purgeableBytes =
            purgeable.bytesOn(path, volume.totalBytes, std::bind_front(askForPurgeableBytes, url, available));
    volume.freeBytes = freeBytes(available, purgeableBytes, volume.totalBytes);
    return volume;
}

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

bool fitSums(const std::vector<DiskCounters>& disks) {
    DiskCounters sum;
    return std::ranges::all_of(disks, [&sum](const DiskCounters& disk) {
        return !__builtin_add_overflow(sum.bytesRead, disk.bytesRead, &sum.bytesRead) &&
               !__builtin_add_overflow(sum.bytesWritten, disk.bytesWritten, &sum.bytesWritten);
    });
}

} // namespace

std::optional<std::vector<MountedVolume>> DarwinDiskSource::readVolumes() {
    const ReleasePool pool;
    // The list would compute each value for each volume, so what needs another process is not among them.
    const std::array<id, 5> keyList{NSURLVolumeNameKey, NSURLVolumeTotalCapacityKey,
                                    NSURLVolumeAvailableCapacityKey, NSURLVolumeIsLocalKey,
                                    NSURLVolumeIsInternalKey};
    NSArray* const keys = [NSArray arrayWithObjects:keyList.data() count:keyList.size()];
    NSArray* const urls = [[NSFileManager defaultManager]
        mountedVolumeURLsIncludingResourceValuesForKeys:keys
                                                options:NSVolumeEnumerationSkipHiddenVolumes];
    if (urls == nil)
        return std::nullopt;
    m_purgeable.beginList();
    std::vector<MountedVolume> volumes;
    for (NSUInteger index = 0; index < [urls count]; ++index) {
        if (std::optional<MountedVolume> volume =
                mountedVolume([urls objectAtIndex:index], keys, m_purgeable))
            volumes.push_back(*std::move(volume));
    }
    return volumes;
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
    return fitSums(disks) ? std::optional(std::move(disks)) : std::nullopt;
}

} // namespace orvelle::darwin_platform
