#pragma once

#include <AppKit/NSView.h>

enum NSRectEdge : NSUInteger {
    NSRectEdgeMinX = 0,
    NSRectEdgeMinY = 1,
    NSRectEdgeMaxX = 2,
    NSRectEdgeMaxY = 3
};
enum NSPopoverBehavior : NSInteger {
    NSPopoverBehaviorApplicationDefined = 0,
    NSPopoverBehaviorTransient = 1
};

@class NSPopover;

@protocol NSPopoverDelegate <NSObject>
@optional
- (BOOL)popoverShouldClose:(NSPopover*)popover;
- (void)popoverWillClose:(NSNotification*)notification;
- (void)popoverDidClose:(NSNotification*)notification;
@end

@interface NSPopover : NSResponder {
  @public
    NSSize m_contentSize;
    NSPopoverBehavior m_behavior;
    BOOL m_animates;
    BOOL m_isShown;
    BOOL m_isClosing; ///< fading out; still shown meanwhile
    id<NSPopoverDelegate> m_delegate;
    NSViewController* m_controller;
    NSWindow* m_window;
    NSRect m_anchorRect;
    NSView* m_anchorView;
    NSRectEdge m_edge;
}
- (void)setContentSize:(NSSize)size;
- (void)setBehavior:(NSPopoverBehavior)behavior;
- (void)setAnimates:(BOOL)animates;
- (void)setDelegate:(id<NSPopoverDelegate>)delegate;
- (void)setContentViewController:(NSViewController*)controller;
- (void)showRelativeToRect:(NSRect)rect ofView:(NSView*)view preferredEdge:(NSRectEdge)edge;
- (BOOL)isShown;
- (void)close;
@end
