#include "appkit/simulated/objects.h"

#include <objc/runtime.h>

using namespace orvelle::simulated;

namespace {

NSEvent*& currentEventPlace() {
    static NSEvent* event = nil;
    return event;
}

/// A receiver and the message that it wants.
struct Handler {
    id object = nil;
    SEL selector = nullptr;
};

/// Of the program's being opened again.
Handler& reopenHandler() {
    static Handler handler;
    return handler;
}

bool isReopenEvent(AEEventClass eventClass, AEEventID eventIdentifier) {
    return eventClass == kCoreEventClass && eventIdentifier == kAEReopenApplication;
}

} // namespace

namespace orvelle::simulated {
namespace {

std::unique_ptr<Desktop>& desktopPlace() {
    static auto place = std::make_unique<Desktop>();
    return place;
}

} // namespace

Desktop& desktop() { return *desktopPlace(); }

void startDesktop() {
    desktopPlace() = std::make_unique<Desktop>();
    reopenHandler() = {};
    forgetObservers();
    forgetKeyboard();
    NSApp = theOnly([NSApplication class]);
}

NSEvent* handledEvent() { return currentEventPlace(); }

void handleNoEvent(const std::function<void()>& handling) {
    static int depth = 0;
    ++depth;
    NSAutoreleasePool* const pool = [[NSAutoreleasePool alloc] init];
    handling();
    if (--depth == 0)
        letTheSystemRespond();
    [pool release];
}

void handleEvent(Event given, const std::function<void()>& handling) {
    handleNoEvent([&] {
        NSEvent* const event = [[[NSEvent alloc] init] autorelease];
        event->m_type = given.type;
        event->m_modifierFlags = given.modifiers;
        event->m_window = given.window;
        event->m_key = given.key;
        NSEvent* const before = std::exchange(currentEventPlace(), event);
        handling();
        currentEventPlace() = before;
    });
}

void chooseReducedMotion(bool isReduced) {
    desktop().script.reducesMotion = isReduced;
    handleNoEvent([] {
        post([[NSWorkspace sharedWorkspace] notificationCenter],
             NSWorkspaceAccessibilityDisplayOptionsDidChangeNotification, nil);
    });
}

void openProgramAgain() {
    if (reopenHandler().object == nil)
        return;
    handleNoEvent([] {
        [reopenHandler().object performSelector:reopenHandler().selector withObject:nil withObject:nil];
    });
}

} // namespace orvelle::simulated

@implementation NSEvent
- (NSEventType)type {
    return m_type;
}
- (NSEventModifierFlags)modifierFlags {
    return m_modifierFlags;
}
- (NSWindow*)window {
    return m_window;
}
@end

@implementation NSRunningApplication
+ (NSArray*)runningApplicationsWithBundleIdentifier:(NSString*)identifier {
    Objects found;
    const bool isAnswered = desktop().arrives("runningApplicationsWithBundleIdentifier");
    if (isAnswered && textOf(identifier) == desktop().script.bundleIdentifier) {
        for (const RunningProgram& instance : desktop().script.instances) {
            NSRunningApplication* application = [[NSRunningApplication alloc] init];
            application->m_instance = &instance;
            found.push_back(application);
        }
    }
    return makeArray(found);
}
- (int)processIdentifier {
    return static_cast<const RunningProgram*>(m_instance)->processIdentifier;
}
- (BOOL)isTerminated {
    return static_cast<const RunningProgram*>(m_instance)->isTerminated;
}
- (BOOL)terminate {
    desktop().deeds.push_back("end process " + std::to_string([self processIdentifier]));
    return YES;
}
- (NSURL*)bundleURL {
    return desktop().arrives("bundleURL") ? [[[NSURL alloc] init] autorelease] : nil;
}
@end

NSString* const NSWorkspaceAccessibilityDisplayOptionsDidChangeNotification = @"display options";

/// The centre through which the system tells of other programs and of itself.
@interface WorkspaceNotificationCenter : NSNotificationCenter
@end

@implementation WorkspaceNotificationCenter
@end

@implementation NSWorkspace
- (NSNotificationCenter*)notificationCenter {
    return theOnly([WorkspaceNotificationCenter class]);
}
- (BOOL)accessibilityDisplayShouldReduceMotion {
    return desktop().script.reducesMotion;
}
+ (NSWorkspace*)sharedWorkspace {
    return theOnly(self);
}
- (BOOL)openURL:(NSURL*)url {
    desktop().expect(url != nil, "an address that is missing");
    if (!desktop().arrives("openURL"))
        return NO;
    desktop().deeds.push_back(url->m_text == nil ? "open the program's bundle"
                                                 : "open " + textOf(url->m_text));
    return YES;
}
@end

@implementation NSBundle
+ (NSBundle*)mainBundle {
    return theOnly(self);
}
- (NSString*)bundleIdentifier {
    const std::optional<std::string>& identifier = desktop().script.bundleIdentifier;
    if (!desktop().arrives("bundleIdentifier") || !identifier)
        return nil;
    return [NSString stringWithUTF8String:identifier->c_str()];
}
@end

@implementation NSProcessInfo
+ (NSProcessInfo*)processInfo {
    return theOnly(self);
}
- (NSTimeInterval)systemUptime {
    return desktop().script.uptimeSeconds;
}
- (int)processIdentifier {
    return desktop().script.processIdentifier;
}
@end

@implementation NSAppleEventManager
+ (NSAppleEventManager*)sharedAppleEventManager {
    return theOnly(self);
}
- (void)setEventHandler:(id)handler
            andSelector:(SEL)selector
          forEventClass:(AEEventClass)eventClass
             andEventID:(AEEventID)eventIdentifier {
    desktop().expect(isReopenEvent(eventClass, eventIdentifier), "an event that nobody handles here");
    reopenHandler() = {handler, selector};
}
- (void)removeEventHandlerForEventClass:(AEEventClass)eventClass andEventID:(AEEventID)eventIdentifier {
    desktop().expect(isReopenEvent(eventClass, eventIdentifier), "an event that nobody handles here");
    reopenHandler() = {};
}
@end
