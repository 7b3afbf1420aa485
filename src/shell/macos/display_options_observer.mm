#include "shell/macos/display_options_observer.h"

@implementation DisplayOptionsObserver

- (instancetype)initWithListener:(orvelle::DisplayOptionsListener*)listener {
    self = [super init];
    if (self != nil)
        m_listener = listener;
    return self;
}

- (void)start {
    [[[NSWorkspace sharedWorkspace] notificationCenter]
        addObserver:self
           selector:@selector(displayOptionsChanged:)
               name:NSWorkspaceAccessibilityDisplayOptionsDidChangeNotification
             object:nil];
}

- (void)stop {
    [[[NSWorkspace sharedWorkspace] notificationCenter] removeObserver:self];
}

- (void)displayOptionsChanged:(NSNotification*)notification {
    static_cast<void>(notification);
    m_listener->displayOptionsChanged();
}

@end
