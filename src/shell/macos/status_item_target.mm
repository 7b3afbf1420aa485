#include "shell/macos/status_item_target.h"

#include "shell/macos/text.h"

namespace orvelle {
namespace {

/// Holding Control makes a right click of a left one, as everywhere on this desktop.
ClickButton clickButton(NSEvent* event) {
    const bool isRight =
        [event type] == NSEventTypeRightMouseUp || ([event modifierFlags] & NSEventModifierFlagControl) != 0;
    return isRight ? ClickButton::right : ClickButton::left;
}

} // namespace
} // namespace orvelle

@implementation StatusItemTarget

- (instancetype)initWithListener:(orvelle::ClickListener*)listener {
    self = [super init];
    if (self != nil)
        m_listener = listener;
    return self;
}

- (void)statusItemClicked:(NSStatusBarButton*)sender {
    NSEvent* const event = [NSApp currentEvent];
    NSString* const identifier = [sender identifier];
    if (event != nil && identifier != nil)
        m_listener->clicked(orvelle::qtText(identifier), orvelle::clickButton(event));
}

@end
