#include "appkit/simulated/objects.h"

using namespace orvelle::simulated;

namespace orvelle::simulated {
namespace {

NSWindow*& keyWindowPlace() {
    static NSWindow* window = nil;
    return window;
}

} // namespace

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

void setKeyWindow(NSWindow* window) { keyWindowPlace() = window; }
NSWindow* keyWindow() { return keyWindowPlace(); }

} // namespace orvelle::simulated

NSAppearanceName const NSAppearanceNameDarkAqua = @"NSAppearanceNameDarkAqua";

@implementation NSAppearance
+ (NSAppearance*)appearanceNamed:(NSAppearanceName)name {
    NSAppearance* appearance = [[[NSAppearance alloc] init] autorelease];
    appearance->m_name = name;
    return appearance;
}
@end

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
                                .backingScale = desktop().script.backingScale};
    allWindows().push_back(self);
    return self;
}
- (void)dealloc {
    std::erase(allWindows(), self);
    if (keyWindow() == self)
        setKeyWindow(nil);
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
- (void)setContentView:(NSView*)view {
    assign(m_contentView, view);
    view->m_window = self;
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
    recordOf(self).state.isVisible = true;
    ++recordOf(self).state.timesBroughtForward;
    desktop().deeds.push_back("front " + recordOf(self).state.title);
    [self makeKeyWindow];
}
- (void)makeKeyWindow {
    setKeyWindow(self);
}
- (BOOL)makeFirstResponder:(NSView*)view {
    desktop().expect([view window] == self, "keys for a view of another window");
    recordOf(self).firstResponder = view;
    return YES;
}
- (void)close {
    recordOf(self).state.isVisible = false;
    if (keyWindow() == self)
        setKeyWindow(nil);
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
