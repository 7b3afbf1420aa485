#include "darwin/simulated/foundation.h"
#include "darwin/simulated/kernel.h"

using namespace orvelle::simulated;

namespace orvelle::simulated {

const Key nameKey{"name"}, totalKey{"total"}, freeKey{"free"}, localKey{"local"}, internalKey{"internal"};

} // namespace orvelle::simulated

namespace {

// The names of attributes are only compared, so the address of a key stands in for an object.
// NOLINTBEGIN(bugprone-casting-through-void): there is no other cast between a structure and an object
NSString* keyObject(const Key& key) { return (NSString*)(void*)&key; }

/// The names of the keys, as they were given.
std::string namesOf(NSArray* keys) {
    std::string names;
    for (NSUInteger index = 0; index < [keys count]; ++index)
        names += std::string(" ") + ((const Key*)(void*)[keys objectAtIndex:index])->name;
    return names;
}
// NOLINTEND(bugprone-casting-through-void)

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
NSString* const NSURLVolumeAvailableCapacityForImportantUsageKey = keyObject(freeKey);
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
    NamedObjects objects;
    for (const Key* key : {&nameKey, &totalKey, &freeKey, &localKey}) {
        const auto value = volume->values->find(key->name);
        if (value != volume->values->end())
            objects[key] = makeObject(value->second);
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
    for (const Volume& volume : *volumes)
        urls.push_back([[NSURL alloc] initWithVolume:&volume]);
    return [[[NSArray alloc] initWithObjects:urls] autorelease];
}
@end
