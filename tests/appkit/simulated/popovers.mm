#include "appkit/simulated/objects.h"

using namespace orvelle::simulated;

// A popover has a window of the system's own, which passes on to it the keys that no view wants.

namespace orvelle::simulated {

std::vector<NSPopover*>& allPopovers() {
    static std::vector<NSPopover*> popovers;
    return popovers;
}

} // namespace orvelle::simulated

namespace {

/// The windows of popovers that are gone and were fading then.
std::vector<NSWindow*>& orphans() {
    static std::vector<NSWindow*> windows;
    return windows;
}

bool mayClose(NSPopover* popover) {
    const bool asks = desktop().script.asksBeforeClosingPopover &&
                      [popover->m_delegate respondsToSelector:@selector(popoverShouldClose:)];
    return !asks || [popover->m_delegate popoverShouldClose:popover];
}

} // namespace

@interface NSPopover (Simulated)
- (void)finishClosing;
- (void)leaveWindow;
@end

@implementation NSPopover
- (id)init {
    allPopovers().push_back(self);
    return self;
}
- (void)dealloc {
    std::erase(allPopovers(), self);
    if (m_isClosing && m_window != nil)
        orphans().push_back([m_window retain]);
    [self leaveWindow];
    [m_controller release];
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
    desktop().expect(!desktop().isHidden, "a popover of a hidden program");
    if (!desktop().arrives("showRelativeToRect"))
        return;
    m_isShown = YES;
    m_isClosing = NO;
    m_anchorRect = rect;
    assign(m_anchorView, view);
    m_edge = edge;
    [[m_controller view] setFrame:NSMakeRect(0, 0, m_contentSize.width, m_contentSize.height)];
    if (m_window == nil && desktop().arrives("popover's window")) {
        m_window = makeSystemWindow();
        [m_window setNextResponder:self];
        fill(m_window, [m_controller view]);
    }
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
    [self leaveWindow];
    if ([m_delegate respondsToSelector:@selector(popoverDidClose:)])
        [m_delegate popoverDidClose:nil];
}
/// The window is another one when the popover is shown again.
- (void)leaveWindow {
    if (m_window == nil)
        return;
    NSWindow* const window = std::exchange(m_window, nil);
    loseKeyboard(window);
    [window makeFirstResponder:nil];
    [window setNextResponder:nil];
    if (!m_isClosing)
        [m_controller view]->m_window = nil;
    [window release];
}
- (void)keyDown:(NSEvent*)event {
    if (event->m_key == escapeKey && m_isShown && mayClose(self))
        [self close];
}
@end

namespace orvelle::simulated {

void closeTransientPopovers() {
    const std::vector<NSPopover*> popovers = allPopovers();
    for (NSPopover* popover : popovers) {
        if (!popover->m_isShown || popover->m_behavior != NSPopoverBehaviorTransient)
            continue;
        if (mayClose(popover))
            [popover close];
    }
}

void finishFading() {
    const std::vector<NSPopover*> popovers = allPopovers();
    for (NSPopover* popover : popovers) {
        if (popover->m_isClosing)
            [popover finishClosing];
    }
    for (NSWindow* window : std::exchange(orphans(), {}))
        [window release];
}

} // namespace orvelle::simulated
