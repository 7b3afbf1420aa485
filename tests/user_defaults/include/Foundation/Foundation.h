#pragma once

// Simulated macOS: the few classes of Foundation that keep settings.
#include <objc/objc.h>

typedef long NSInteger;
typedef unsigned long NSUInteger;
typedef unsigned short unichar;
typedef NSUInteger NSKeyValueObservingOptions;

typedef struct _NSRange {
    NSUInteger location;
    NSUInteger length;
} NSRange;

inline NSRange NSMakeRange(NSUInteger location, NSUInteger length) { return {location, length}; }

@class NSDictionary, NSString;

@protocol NSObject
- (BOOL)isKindOfClass:(Class)candidate;
- (id)retain;
- (oneway void)release;
- (id)autorelease;
@end

__attribute__((objc_root_class))
@interface NSObject<NSObject> {
    Class isa;
    NSUInteger m_references;
}
+ (id)alloc;
+ (Class)class;
- (id)init;
- (void)dealloc;
@end

@interface NSObject (NSThreadPerformAdditions)
- (void)performSelectorOnMainThread:(SEL)selector withObject:(id)argument waitUntilDone:(BOOL)wait;
@end

@interface NSObject (NSKeyValueObserving)
- (void)observeValueForKeyPath:(NSString*)keyPath
                      ofObject:(id)object
                        change:(NSDictionary*)change
                       context:(void*)context;
@end

@interface NSObject (NSKeyValueObserverRegistration)
- (void)addObserver:(NSObject*)observer
         forKeyPath:(NSString*)keyPath
            options:(NSKeyValueObservingOptions)options
            context:(void*)context;
- (void)removeObserver:(NSObject*)observer forKeyPath:(NSString*)keyPath;
@end

@interface NSAutoreleasePool : NSObject {
    void* m_objects;
}
@end

@interface NSString : NSObject {
    void* m_units;
}
- (id)initWithCharacters:(const unichar*)characters length:(NSUInteger)length;
- (NSUInteger)length;
- (void)getCharacters:(unichar*)buffer range:(NSRange)range;
- (BOOL)isEqualToString:(NSString*)string;
@end

@interface NSValue : NSObject
@end

@interface NSNumber : NSValue {
    double m_value;
    BOOL m_isBoolean;
}
+ (NSNumber*)numberWithBool:(BOOL)value;
+ (NSNumber*)numberWithDouble:(double)value;
- (BOOL)boolValue;
- (double)doubleValue;
@end

@interface NSBundle : NSObject
+ (NSBundle*)mainBundle;
- (NSString*)bundleIdentifier;
@end

@interface NSUserDefaults : NSObject {
    void* m_domain;
}
+ (NSUserDefaults*)standardUserDefaults;
- (id)initWithSuiteName:(NSString*)suiteName;
- (id)objectForKey:(NSString*)key;
- (void)setObject:(id)value forKey:(NSString*)key;
- (BOOL)synchronize;
@end
