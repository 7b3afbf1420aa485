#include "shell/macos/popover_observer.h"

@implementation PopoverObserver

- (instancetype)initWithListener:(orvelle::PopoverListener*)listener {
    self = [super init];
    if (self != nil)
        m_listener = listener;
    return self;
}

- (BOOL)popoverShouldClose:(NSPopover*)popover {
    static_cast<void>(popover);
    return m_listener->mayClose() ? YES : NO;
}

- (void)popoverWillClose:(NSNotification*)notification {
    static_cast<void>(notification);
    m_listener->willClose();
}

- (void)popoverDidClose:(NSNotification*)notification {
    static_cast<void>(notification);
    m_listener->didClose();
}

@end
