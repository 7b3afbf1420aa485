#include "darwin/simulated/foundation.h"
#include "darwin/simulated/kernel.h"

using namespace orvelle::simulated;

namespace orvelle::simulated {

const Key nameKey{"name"}, totalKey{"total"}, availableKey{"available"}, importantKey{"important"},
    localKey{"local"}, internalKey{"internal"};

} // namespace orvelle::simulated

namespace {

// The names of attributes are only compared, so the address of a key stands in for an object.
// NOLINTBEGIN(bugprone-casting-through-void): there is no other cast between a structure and an object
NSString* keyObject(const Key& key) { return (NSString*)(void*)&key; }

const Key& keyAt(NSArray* keys, NSUInteger index) { return *(const Key*)(void*)[keys objectAtIndex:index]; }

/// The names of the keys, as they were given.
std::string namesOf(NSArray* keys) {
    std::string names;
    for (NSUInteger index = 0; index < [keys count]; ++index)
        names += std::string(" ") + keyAt(keys, index).name;
    return names;
}
// NOLINTEND(bugprone-casting-through-void)

/// Only another process knows what could be deleted: whoever asks for this value of a volume waits for its
/// answer. Asking for it with the list of volumes asks for that of every volume.
bool canAskForImportantUsage(NSArray* keys, const Volume& volume) {
    for (NSUInteger index = 0; index < [keys count]; ++index) {
        if (&keyAt(keys, index) == &importantKey)
            return kernel().arrives("importantUsage of " + volume.path.value_or("no path"));
    }
    return true;
}

id makeObject(const Property& property) {
    if (const auto* text = std::get_if<std::string>(&property))
        return [[NSString alloc] initWithText:*text];
    if (const auto* isTrue = std::get_if<bool>(&property))
        return [[NSNumber alloc] initWithValue:*isTrue];
    return [[NSNumber alloc] initWithValue:std::get<std::int64_t>(property)];
}

} // namespace

NSString* const NSURLVolumeNameKey = keyObject(nameKey);
NSString* const NSURLVolumeTotalCapacityKey = keyObject(totalKey);
NSString* const NSURLVolumeAvailableCapacityKey = keyObject(availableKey);
NSString* const NSURLVolumeAvailableCapacityForImportantUsageKey = keyObject(importantKey);
NSString* const NSURLVolumeIsLocalKey = keyObject(localKey);
NSString* const NSURLVolumeIsInternalKey = keyObject(internalKey);

@implementation NSURL
- (id)initWithVolume:(const Volume*)volume {
    m_volume = volume;
    return self;
}
- (NSString*)path {
    const auto* volume = static_cast<const Volume*>(m_volume);
    return volume->path ? [[[NSString alloc] initWithText:*volume->path] autorelease] : nil;
}
- (NSDictionary*)resourceValuesForKeys:(NSArray*)keys error:(NSError**)error {
    kernel().expect(error == nullptr, "an error that nobody reads");
    const auto* volume = static_cast<const Volume*>(m_volume);
    if (!kernel().arrives("resourceValues" + namesOf(keys)) || !volume->values)
        return nil;
    const bool hasImportantUsage = canAskForImportantUsage(keys, *volume);
    NamedObjects objects;
    for (NSUInteger index = 0; index < [keys count]; ++index) {
        const Key& key = keyAt(keys, index);
        const auto value = volume->values->find(key.name);
        if (value != volume->values->end() && (&key != &importantKey || hasImportantUsage))
            objects[&key] = makeObject(value->second);
    }
    return [[[NSDictionary alloc] initWithNamedObjects:objects] autorelease];
}
@end

@implementation NSFileManager
+ (NSFileManager*)defaultManager {
    // One for the life of the process, so that nobody has to release it.
    static NSFileManager* manager = nil;
    if (manager == nil) {
        manager = [[NSFileManager alloc] init];
        kernel().foundationObjects.erase((void*)manager);
    }
    return manager;
}
- (NSArray*)mountedVolumeURLsIncludingResourceValuesForKeys:(NSArray*)keys
                                                    options:(NSVolumeEnumerationOptions)options {
    kernel().expect(options == NSVolumeEnumerationSkipHiddenVolumes, "a list with hidden volumes");
    const std::optional<std::vector<Volume>>& volumes = kernel().machine.volumes;
    if (!kernel().arrives("mountedVolumeURLs" + namesOf(keys)) || !volumes)
        return nil;
    Objects urls;
    for (const Volume& volume : *volumes) {
        static_cast<void>(canAskForImportantUsage(keys, volume));
        urls.push_back([[NSURL alloc] initWithVolume:&volume]);
    }
    return [[[NSArray alloc] initWithObjects:urls] autorelease];
}
@end
