#include "appkit/simulated/objects.h"

using namespace orvelle::simulated;

namespace orvelle::simulated {

std::vector<NSPopover*>& allPopovers() {
    static std::vector<NSPopover*> popovers;
    return popovers;
}

} // namespace orvelle::simulated

@interface NSPopover (Simulated)
- (void)finishClosing;
@end

@implementation NSPopover
- (id)init {
    allPopovers().push_back(self);
    return self;
}
- (void)dealloc {
    std::erase(allPopovers(), self);
    if (m_controller != nil)
        [m_controller view]->m_window = nil;
    [m_controller release];
    [m_window release];
    [m_anchorView release];
    [super dealloc];
}
- (void)setContentSize:(NSSize)size {
    m_contentSize = size;
}
- (void)setBehavior:(NSPopoverBehavior)behavior {
    m_behavior = behavior;
}
- (void)setAnimates:(BOOL)animates {
    m_animates = animates;
}
- (void)setDelegate:(id<NSPopoverDelegate>)delegate {
    m_delegate = delegate;
}
- (void)setContentViewController:(NSViewController*)controller {
    assign(m_controller, controller);
}
- (void)showRelativeToRect:(NSRect)rect ofView:(NSView*)view preferredEdge:(NSRectEdge)edge {
    desktop().expect(m_controller != nil, "a popover without content");
    desktop().expect([view window] != nil, "a popover at a view that is in no window");
    if (!desktop().arrives("showRelativeToRect"))
        return;
    m_isShown = YES;
    m_isClosing = NO;
    m_anchorRect = rect;
    assign(m_anchorView, view);
    m_edge = edge;
    if (m_window == nil && desktop().arrives("popover's window"))
        m_window = makeSystemWindow();
    [m_controller view]->m_window = m_window;
    desktop().deeds.push_back("show " + textOf([(NSStatusBarButton*)view identifier]));
}
- (BOOL)isShown {
    return m_isShown;
}
- (void)close {
    if (!m_isShown || m_isClosing)
        return;
    m_isClosing = YES;
    desktop().deeds.push_back("close " + textOf([(NSStatusBarButton*)m_anchorView identifier]));
    if ([m_delegate respondsToSelector:@selector(popoverWillClose:)])
        [m_delegate popoverWillClose:nil];
    if (!desktop().script.popoversFade)
        [self finishClosing];
}
- (void)finishClosing {
    m_isShown = NO;
    m_isClosing = NO;
    if (keyWindow() == m_window)
        setKeyWindow(nil);
    if ([m_delegate respondsToSelector:@selector(popoverDidClose:)])
        [m_delegate popoverDidClose:nil];
}
@end

namespace orvelle::simulated {

void closeTransientPopovers() {
    const std::vector<NSPopover*> popovers = allPopovers();
    for (NSPopover* popover : popovers) {
        if (!popover->m_isShown || popover->m_behavior != NSPopoverBehaviorTransient)
            continue;
        const bool asks = desktop().script.asksBeforeClosingPopover &&
                          [popover->m_delegate respondsToSelector:@selector(popoverShouldClose:)];
        if (!asks || [popover->m_delegate popoverShouldClose:popover])
            [popover close];
    }
}

void finishFading() {
    const std::vector<NSPopover*> popovers = allPopovers();
    for (NSPopover* popover : popovers) {
        if (popover->m_isClosing)
            [popover finishClosing];
    }
}

} // namespace orvelle::simulated
