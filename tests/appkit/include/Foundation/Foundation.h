#pragma once

// Simulated macOS: the few classes of Foundation that the shell uses.
#include <CoreGraphics/CoreGraphics.h>
#include <CoreServices/CoreServices.h>

#include <objc/objc.h>
#include <sys/types.h>

typedef long NSInteger;
typedef unsigned long NSUInteger;
typedef double NSTimeInterval;
typedef CGPoint NSPoint;
typedef CGSize NSSize;
typedef CGRect NSRect;

inline NSSize NSMakeSize(CGFloat width, CGFloat height) { return {width, height}; }
inline NSRect NSMakeRect(CGFloat x, CGFloat y, CGFloat width, CGFloat height) {
    return {{x, y}, {width, height}};
}

@protocol NSObject
- (BOOL)respondsToSelector:(SEL)selector;
- (BOOL)isKindOfClass:(Class)aClass;
@end

__attribute__((objc_root_class))
@interface NSObject<NSObject> {
    Class isa;
}
+ (id)alloc;
+ (Class)class;
- (id)init;
- (id)retain;
- (void)release;
- (id)autorelease;
- (void)dealloc;
- (BOOL)respondsToSelector:(SEL)selector;
- (BOOL)isKindOfClass:(Class)aClass;
- (id)performSelector:(SEL)selector withObject:(id)object;
- (id)performSelector:(SEL)selector withObject:(id)first withObject:(id)second;
@end

@interface NSAutoreleasePool : NSObject {
    void* m_objects;
}
@end

@interface NSString : NSObject
+ (id)stringWithUTF8String:(const char*)text;
- (const char*)UTF8String;
- (BOOL)isEqualToString:(NSString*)text;
@end

/// What a literal in the source is.
@interface NSConstantString : NSString {
    const char* m_text;
    unsigned int m_length;
}
@end

@interface NSArray : NSObject {
    void* m_objects;
}
+ (id)arrayWithObjects:(const id[])objects count:(NSUInteger)count;
- (NSUInteger)count;
- (id)objectAtIndex:(NSUInteger)index;
@end

@class NSError;

typedef NSString* NSNotificationName;

@interface NSNotification : NSObject {
  @public
    NSString* m_name;
    id m_object;
}
- (NSNotificationName)name;
- (id)object;
@end

@interface NSURL : NSObject {
  @public
    NSString* m_path;
    NSString* m_text;
}
+ (NSURL*)URLWithString:(NSString*)text;
- (NSString*)path;
@end

@interface NSNotificationCenter : NSObject
+ (NSNotificationCenter*)defaultCenter;
- (void)addObserver:(id)observer selector:(SEL)selector name:(NSString*)name object:(id)object;
- (void)removeObserver:(id)observer;
@end

@interface NSBundle : NSObject
+ (NSBundle*)mainBundle;
- (NSString*)bundleIdentifier;
@end

@interface NSProcessInfo : NSObject
+ (NSProcessInfo*)processInfo;
- (NSTimeInterval)systemUptime;
- (int)processIdentifier;
@end

@class NSAppleEventDescriptor;

@interface NSAppleEventManager : NSObject
+ (NSAppleEventManager*)sharedAppleEventManager;
- (void)setEventHandler:(id)handler
            andSelector:(SEL)selector
          forEventClass:(AEEventClass)eventClass
             andEventID:(AEEventID)eventIdentifier;
- (void)removeEventHandlerForEventClass:(AEEventClass)eventClass andEventID:(AEEventID)eventIdentifier;
@end

extern "C" Class NSClassFromString(NSString* name);

#include <Foundation/NSUserDefaults.h>
