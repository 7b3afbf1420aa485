#include "appkit/simulated/objects.h"

using namespace orvelle::simulated;

namespace orvelle::simulated {
std::vector<NSWindow*>& allWindows() {
    static std::vector<NSWindow*> windows;
    return windows;
}

WindowRecord& recordOf(NSWindow* window) { return *static_cast<WindowRecord*>(window->m_record); }

NSWindow* makeSystemWindow() {
    NSWindow* window = [[NSWindow alloc] initWithContentRect:NSMakeRect(0, 0, 0, 0)
                                                   styleMask:0
                                                     backing:NSBackingStoreBuffered
                                                       defer:NO];
    recordOf(window).isProgramsOwn = false;
    return window;
}

void fill(NSWindow* window, NSView* content) {
    assign(window->m_contentView, content);
    content->m_window = window;
}

} // namespace orvelle::simulated

NSNotificationName const NSWindowDidBecomeKeyNotification = @"NSWindowDidBecomeKeyNotification";

@implementation NSColor
+ (NSColor*)colorWithWhite:(CGFloat)white alpha:(CGFloat)alpha {
    NSColor* color = [[[NSColor alloc] init] autorelease];
    color->m_white = white;
    color->m_alpha = alpha;
    return color;
}
@end

@implementation NSWindow
- (id)initWithContentRect:(NSRect)contentRect
                styleMask:(NSWindowStyleMask)style
                  backing:(NSBackingStoreType)backing
                    defer:(BOOL)defer {
    m_record = new WindowRecord{.state = {.width = contentRect.size.width,
                                          .height = contentRect.size.height,
                                          .styleMask = style,
                                          .backing = backing,
                                          .isDeferred = defer != 0},
                                .isProgramsOwn = true,
                                .backingScale = desktop().script.backingScale,
                                .firstResponder = self};
    allWindows().push_back(self);
    NSView* const content =
        [[NSView alloc] initWithFrame:NSMakeRect(0, 0, contentRect.size.width, contentRect.size.height)];
    fill(self, content);
    [content release];
    return self;
}
- (void)dealloc {
    std::erase(allWindows(), self);
    loseKeyboard(self);
    if (m_contentView != nil)
        m_contentView->m_window = nil;
    [m_contentView release];
    [m_appearance release];
    [m_backgroundColor release];
    delete static_cast<WindowRecord*>(m_record);
    [super dealloc];
}
- (void)setTitle:(NSString*)title {
    recordOf(self).state.title = textOf(title);
}
- (void)setTitlebarAppearsTransparent:(BOOL)transparent {
    recordOf(self).state.isTitlebarTransparent = transparent;
}
- (void)setTitleVisibility:(NSWindowTitleVisibility)visibility {
    recordOf(self).state.titleVisibility = visibility;
}
- (void)setMovableByWindowBackground:(BOOL)movable {
    recordOf(self).state.isMovableByBackground = movable;
}
- (void)setReleasedWhenClosed:(BOOL)released {
    recordOf(self).state.isReleasedWhenClosed = released;
}
- (void)setAppearance:(NSAppearance*)appearance {
    assign(m_appearance, appearance);
    recordOf(self).state.appearance = textOf(appearance->m_name);
}
- (void)setBackgroundColor:(NSColor*)color {
    assign(m_backgroundColor, color);
    recordOf(self).state.backgroundWhite = color->m_white;
    recordOf(self).state.backgroundAlpha = color->m_alpha;
}
- (void)setDelegate:(id<NSWindowDelegate>)delegate {
    m_delegate = delegate;
}
- (NSView*)contentView {
    return m_contentView;
}
/// Of a window of which the content fills all, without what the title covers.
- (NSRect)contentLayoutRect {
    constexpr CGFloat titleHeight = 28;
    constexpr NSWindowStyleMask covered = NSWindowStyleMaskTitled | NSWindowStyleMaskFullSizeContentView;
    NSRect rect = [m_contentView frame];
    if ((recordOf(self).state.styleMask & covered) == covered)
        rect.size.height -= titleHeight;
    return rect;
}
- (void)center {
    recordOf(self).state.isCentered = true;
}
- (BOOL)setFrameAutosaveName:(NSString*)name {
    desktop().expect(recordOf(self).state.isCentered, "the remembered place is left for the middle again");
    recordOf(self).state.autosaveName = textOf(name);
    return YES;
}
- (void)makeKeyAndOrderFront:(id)sender {
    static_cast<void>(sender);
    WindowState& state = recordOf(self).state;
    state.isVisible = !state.isMiniaturized && !desktop().isHidden;
    ++state.timesBroughtForward;
    desktop().deeds.push_back("front " + state.title);
    if (state.isVisible)
        [self makeKeyWindow];
}
- (void)makeKeyWindow {
    askForKeyboard(self);
}
- (BOOL)isKeyWindow {
    return keyWindow() == self;
}
- (BOOL)isMiniaturized {
    return recordOf(self).state.isMiniaturized;
}
- (void)deminiaturize:(id)sender {
    static_cast<void>(sender);
    recordOf(self).state.isMiniaturized = false;
    recordOf(self).state.isVisible = true;
}
- (BOOL)makeFirstResponder:(NSResponder*)responder {
    NSResponder* const wanted = responder != nil ? responder : self;
    desktop().expect(wanted == self || [(NSView*)wanted window] == self, "keys for a view of another window");
    NSResponder*& present = recordOf(self).firstResponder;
    if (wanted == present)
        return YES; // and nobody is told
    if (wanted != self && ![wanted acceptsFirstResponder])
        return NO;
    [present resignFirstResponder];
    present = wanted;
    return [present becomeFirstResponder];
}
- (void)close {
    NSNotification* const notification = makeNotification(@"NSWindowWillCloseNotification", self);
    if ([m_delegate respondsToSelector:@selector(windowWillClose:)])
        [m_delegate windowWillClose:notification];
    [notification release];
    recordOf(self).state.isVisible = false;
    loseKeyboard(self);
    if (recordOf(self).state.isReleasedWhenClosed)
        [self release];
}
- (CGFloat)backingScaleFactor {
    return recordOf(self).backingScale;
}
- (NSWindowOcclusionState)occlusionState {
    return desktop().script.showsMenuBar ? NSWindowOcclusionState{NSWindowOcclusionStateVisible} : 0;
}
@end
