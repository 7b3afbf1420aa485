#include "shell/macos/reopen_observer.h"

#include <CoreServices/CoreServices.h>

@implementation ReopenObserver

- (instancetype)initWithListener:(orvelle::ReopenListener*)listener {
    self = [super init];
    if (self != nil)
        m_listener = listener;
    return self;
}

- (void)start {
    [[NSAppleEventManager sharedAppleEventManager] setEventHandler:self
                                                       andSelector:@selector(handleReopen:withReplyEvent:)
                                                     forEventClass:kCoreEventClass
                                                        andEventID:kAEReopenApplication];
}

- (void)stop {
    [[NSAppleEventManager sharedAppleEventManager] removeEventHandlerForEventClass:kCoreEventClass
                                                                        andEventID:kAEReopenApplication];
}

- (void)handleReopen:(NSAppleEventDescriptor*)event withReplyEvent:(NSAppleEventDescriptor*)reply {
    static_cast<void>(event);
    static_cast<void>(reply);
    m_listener->reopened();
}

@end
