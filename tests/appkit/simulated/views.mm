#include "appkit/simulated/objects.h"

#include <cstring>

using namespace orvelle::simulated;

namespace {

using Pins = std::set<std::string>;

Objects& subviewsOf(NSView* view) { return *static_cast<Objects*>(view->m_subviews); }

template <class Anchor> Anchor* makeAnchor(NSView* view, const char* edge) {
    Anchor* anchor = [[[Anchor alloc] init] autorelease];
    anchor->m_view = view;
    anchor->m_edge = edge;
    return anchor;
}

/// What a change of its own size does to the views within.
NSRect resized(NSRect frame, NSAutoresizingMaskOptions mask, NSSize before, NSSize after) {
    if ((mask & NSViewWidthSizable) != 0)
        frame.size.width += after.width - before.width;
    if ((mask & NSViewHeightSizable) != 0)
        frame.size.height += after.height - before.height;
    return frame;
}

bool isWithin(NSResponder* responder, NSView* view) {
    while (responder != nil && responder != view)
        responder = [responder isKindOfClass:[NSView class]] ? ((NSView*)responder)->m_superview : nil;
    return responder != nil;
}

} // namespace

@implementation NSResponder
- (NSResponder*)nextResponder {
    return m_nextResponder;
}
- (void)setNextResponder:(NSResponder*)responder {
    m_nextResponder = responder;
}
- (BOOL)acceptsFirstResponder {
    return NO;
}
- (BOOL)becomeFirstResponder {
    return YES;
}
- (BOOL)resignFirstResponder {
    return YES;
}
- (void)keyDown:(NSEvent*)event {
    [[self nextResponder] keyDown:event];
}
@end

@implementation NSLayoutAnchor
- (NSLayoutConstraint*)constraintEqualToAnchor:(NSLayoutAnchor*)anchor {
    NSLayoutConstraint* constraint = [[[NSLayoutConstraint alloc] init] autorelease];
    constraint->m_first = self;
    constraint->m_second = anchor;
    return constraint;
}
@end

@implementation NSLayoutXAxisAnchor
@end

@implementation NSLayoutYAxisAnchor
@end

@implementation NSLayoutConstraint
- (void)setActive:(BOOL)active {
    NSView* const view = m_first->m_view;
    desktop().expect(active && view->m_superview != nil && view->m_superview == m_second->m_view,
                     "a constraint between views that do not lie in each other");
    desktop().expect(std::strcmp(m_first->m_edge, m_second->m_edge) == 0,
                     "an edge tied to another kind of edge");
    static_cast<Pins*>(view->m_pins)->insert(m_first->m_edge);
}
@end

@implementation NSView
- (id)init {
    return [self initWithFrame:NSMakeRect(0, 0, 0, 0)];
}
- (id)initWithFrame:(NSRect)frame {
    m_frame = frame;
    m_subviews = new Objects;
    m_pins = new Pins;
    m_translatesAutoresizing = YES;
    return self;
}
- (void)dealloc {
    for (id view : subviewsOf(self)) {
        ((NSView*)view)->m_superview = nil;
        [view release];
    }
    [m_identifier release];
    [m_accessibilityLabel release];
    delete static_cast<Objects*>(m_subviews);
    delete static_cast<Pins*>(m_pins);
    [super dealloc];
}
- (NSResponder*)nextResponder {
    if (m_nextResponder != nil)
        return m_nextResponder;
    return m_superview != nil ? (NSResponder*)m_superview : (NSResponder*)m_window;
}
- (NSRect)frame {
    return m_frame;
}
- (NSRect)bounds {
    return {{0, 0}, m_frame.size};
}
- (void)setFrame:(NSRect)frame {
    const NSSize before = std::exchange(m_frame, frame).size;
    for (id view : subviewsOf(self))
        [view setFrame:resized([view frame], ((NSView*)view) -> m_autoresizing, before, frame.size)];
}
- (BOOL)isHidden {
    return m_isHidden;
}
- (void)setHidden:(BOOL)hidden {
    m_isHidden = hidden;
}
- (void)setAutoresizingMask:(NSAutoresizingMaskOptions)mask {
    m_autoresizing = mask;
}
- (void)setTranslatesAutoresizingMaskIntoConstraints:(BOOL)translates {
    m_translatesAutoresizing = translates;
}
- (NSLayoutXAxisAnchor*)leadingAnchor {
    return makeAnchor<NSLayoutXAxisAnchor>(self, "leading");
}
- (NSLayoutXAxisAnchor*)trailingAnchor {
    return makeAnchor<NSLayoutXAxisAnchor>(self, "trailing");
}
- (NSLayoutYAxisAnchor*)topAnchor {
    return makeAnchor<NSLayoutYAxisAnchor>(self, "top");
}
- (NSLayoutYAxisAnchor*)bottomAnchor {
    return makeAnchor<NSLayoutYAxisAnchor>(self, "bottom");
}
- (void)addSubview:(NSView*)view {
    desktop().expect(view != nil && view->m_superview == nil, "a view that is added twice, or none");
    [view retain];
    view->m_superview = self;
    subviewsOf(self).push_back(view);
}
- (void)removeFromSuperview {
    if (m_superview == nil)
        return;
    NSWindow* const window = [self window];
    if (window != nil && isWithin(recordOf(window).firstResponder, self))
        [window makeFirstResponder:nil];
    std::erase(subviewsOf(m_superview), (id)self);
    m_superview = nil;
    [self release];
}
- (NSWindow*)window {
    return m_superview != nil ? [m_superview window] : m_window;
}
- (NSView*)hitTest:(NSPoint)point {
    const bool isInside = point.x >= m_frame.origin.x && point.y >= m_frame.origin.y &&
                          point.x < m_frame.origin.x + m_frame.size.width &&
                          point.y < m_frame.origin.y + m_frame.size.height;
    if (!isInside)
        return nil;
    for (id view : subviewsOf(self)) {
        NSView* const hit = [view hitTest:point];
        if (hit != nil)
            return hit;
    }
    return self;
}
- (void)setNeedsDisplay:(BOOL)needsDisplay {
    m_needsDisplay = needsDisplay;
}
- (void)drawRect:(NSRect)dirtyRect {
    static_cast<void>(dirtyRect);
}
- (void)viewDidChangeBackingProperties {
}
/// The parts of the menu bar have appearances of their own.
- (NSAppearance*)effectiveAppearance {
    NSWindow* const window = [self window];
    if (window != nil && window->m_appearance != nil)
        return window->m_appearance;
    return [NSAppearance appearanceNamed:desktop().script.isMenuBarDark ? NSAppearanceNameVibrantDark
                                                                        : NSAppearanceNameVibrantLight];
}
- (void)viewDidChangeEffectiveAppearance {
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
@end

@implementation NSViewController
- (void)dealloc {
    [m_view release];
    [super dealloc];
}
- (NSView*)view {
    return m_view;
}
- (void)setView:(NSView*)view {
    assign(m_view, view);
}
@end
