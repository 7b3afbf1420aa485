#pragma once

#include <AppKit/NSControl.h>
#include <AppKit/NSWindow.h>

enum NSEventType : NSUInteger {
    NSEventTypeLeftMouseDown = 1,
    NSEventTypeLeftMouseUp = 2,
    NSEventTypeRightMouseDown = 3,
    NSEventTypeRightMouseUp = 4,
    NSEventTypeKeyDown = 10
};
enum : NSEventMask {
    NSEventMaskLeftMouseUp = 1ULL << NSEventTypeLeftMouseUp,
    NSEventMaskRightMouseUp = 1ULL << NSEventTypeRightMouseUp
};
typedef NSUInteger NSEventModifierFlags;
enum : NSEventModifierFlags { NSEventModifierFlagControl = 1 << 18 };

@interface NSEvent : NSObject {
  @public
    NSEventType m_type;
    NSEventModifierFlags m_modifierFlags;
    NSWindow* m_window;
    int m_key; ///< in Qt's terms, which the simulated view of Qt needs
}
- (NSEventType)type;
- (NSEventModifierFlags)modifierFlags;
- (NSWindow*)window;
@end

@interface NSApplication : NSResponder
- (NSEvent*)currentEvent;
- (BOOL)isActive;
- (BOOL)isHidden;
- (void)hide:(id)sender;
- (void)unhideWithoutActivation;
- (void)activateIgnoringOtherApps:(BOOL)ignoring;
@end

extern "C" NSApplication* NSApp;

@interface NSRunningApplication : NSObject {
  @public
    const void* m_instance;
}
+ (NSArray*)runningApplicationsWithBundleIdentifier:(NSString*)identifier;
- (int)processIdentifier;
- (BOOL)isTerminated;
- (NSURL*)bundleURL;
- (BOOL)terminate;
@end

@interface NSWorkspace : NSObject
+ (NSWorkspace*)sharedWorkspace;
- (BOOL)openURL:(NSURL*)url;
- (NSNotificationCenter*)notificationCenter;
- (BOOL)accessibilityDisplayShouldReduceMotion;
@end

extern "C" NSString* const NSWorkspaceAccessibilityDisplayOptionsDidChangeNotification;
