#include "appkit/simulated/objects.h"

using namespace orvelle::simulated;

namespace orvelle::simulated {

std::vector<NSStatusItem*>& allStatusItems() {
    static std::vector<NSStatusItem*> items;
    return items;
}

} // namespace orvelle::simulated

@implementation NSStatusBar
+ (NSStatusBar*)systemStatusBar {
    return theOnly(self);
}
- (NSStatusItem*)statusItemWithLength:(CGFloat)length {
    if (!desktop().arrives("statusItemWithLength"))
        return nil;
    NSStatusItem* item = [[[NSStatusItem alloc] initWithLength:length] autorelease];
    allStatusItems().push_back([item retain]);
    return item;
}
- (void)removeStatusItem:(NSStatusItem*)item {
    const bool isThere = std::erase(allStatusItems(), item) == 1;
    desktop().expect(isThere, "removal of an item that is not there");
    if (!isThere)
        return;
    desktop().deeds.push_back("remove " + textOf([item->m_button identifier]));
    [item release];
}
@end

@implementation NSStatusItem
- (id)initWithLength:(CGFloat)length {
    m_length = length;
    if (desktop().arrives("status item's button"))
        m_button = [[NSStatusBarButton alloc] initForItem:self];
    return self;
}
- (void)dealloc {
    if (m_button != nil) {
        m_button->m_item = nil;
        [m_button->m_window release];
        m_button->m_window = nil;
        [m_button release];
    }
    [m_menu release];
    [super dealloc];
}
- (NSStatusBarButton*)button {
    return m_button;
}
- (void)setMenu:(NSMenu*)menu {
    assign(m_menu, menu);
}
@end

@implementation NSStatusBarButton
- (id)initForItem:(NSStatusItem*)item {
    constexpr CGFloat barHeight = 22;
    constexpr NSEventMask onlyLeftMouseUp = 4;
    self = [super initWithFrame:NSMakeRect(0, 0, item->m_length, barHeight)];
    m_item = item;
    m_actionMask = onlyLeftMouseUp;
    m_window = makeSystemWindow();
    return self;
}
- (void)dealloc {
    [m_identifier release];
    [m_accessibilityLabel release];
    [super dealloc];
}
- (void)setTarget:(id)target {
    m_target = target;
}
- (void)setAction:(SEL)action {
    m_action = action;
}
- (NSInteger)sendActionOn:(NSEventMask)mask {
    m_actionMask = mask;
    return 0;
}
- (NSString*)identifier {
    return m_identifier;
}
- (void)setIdentifier:(NSString*)identifier {
    assign(m_identifier, identifier);
}
- (void)setAccessibilityLabel:(NSString*)label {
    assign(m_accessibilityLabel, label);
}
- (void)sendAction {
    desktop().expect(m_target == nil || [m_target respondsToSelector:m_action],
                     "a target that does not know its action");
    [m_target performSelector:m_action withObject:self];
}
- (void)performClick:(id)sender {
    static_cast<void>(sender);
    NSMenu* const menu = m_item != nil ? m_item->m_menu : nil;
    if (menu == nil) {
        [self sendAction];
        return;
    }
    desktop().deeds.push_back("menu " + textOf(m_identifier));
    trackMenu(menu);
}
@end
