#include "shell/macos/menu_target.h"

@implementation MenuTarget

- (instancetype)initWithListener:(orvelle::MenuListener*)listener {
    self = [super init];
    if (self != nil)
        m_listener = listener;
    return self;
}

- (void)choose:(NSMenuItem*)sender {
    m_listener->chosen([sender tag]);
}

@end
