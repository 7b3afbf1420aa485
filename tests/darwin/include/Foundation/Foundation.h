#pragma once

// Simulated macOS: the few classes of Foundation that list mounted volumes.
#include <objc/objc.h>

typedef long NSInteger;
typedef unsigned long NSUInteger;

__attribute__((objc_root_class))
@interface NSObject {
    Class isa;
    NSUInteger m_references;
}
+ (id)alloc;
+ (Class)class;
- (id)init;
- (void)release;
- (id)autorelease;
- (void)dealloc;
- (BOOL)isKindOfClass:(Class)candidate;
@end

@interface NSAutoreleasePool : NSObject {
    void* m_pool;
}
@end

@interface NSString : NSObject {
    void* m_text;
}
- (const char*)UTF8String;
@end

@interface NSNumber : NSObject {
    long long m_value;
}
- (long long)longLongValue;
- (BOOL)boolValue;
@end

@interface NSArray : NSObject {
    void* m_objects;
}
+ (id)arrayWithObjects:(const id*)objects count:(NSUInteger)count;
- (NSUInteger)count;
- (id)objectAtIndex:(NSUInteger)index;
@end

@interface NSDictionary : NSObject {
    void* m_values;
}
- (id)objectForKey:(id)key;
@end

@class NSError;

@interface NSURL : NSObject {
    const void* m_volume;
}
- (NSString*)path;
- (NSDictionary*)resourceValuesForKeys:(NSArray*)keys error:(NSError**)error;
@end

typedef NSUInteger NSVolumeEnumerationOptions;
static const NSVolumeEnumerationOptions NSVolumeEnumerationSkipHiddenVolumes = 2;

@interface NSFileManager : NSObject
+ (NSFileManager*)defaultManager;
- (NSArray*)mountedVolumeURLsIncludingResourceValuesForKeys:(NSArray*)keys
                                                    options:(NSVolumeEnumerationOptions)options;
@end

extern "C" {
extern NSString* const NSURLVolumeNameKey;
extern NSString* const NSURLVolumeTotalCapacityKey;
extern NSString* const NSURLVolumeAvailableCapacityKey;
extern NSString* const NSURLVolumeAvailableCapacityForImportantUsageKey;
extern NSString* const NSURLVolumeIsLocalKey;
extern NSString* const NSURLVolumeIsInternalKey;
}
