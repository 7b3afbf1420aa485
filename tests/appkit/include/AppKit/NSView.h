#pragma once

#include <AppKit/NSAppearance.h>
#include <AppKit/NSResponder.h>

@class NSLayoutConstraint;
@class NSView;
@class NSWindow;

typedef NSUInteger NSAutoresizingMaskOptions;
enum : NSAutoresizingMaskOptions { NSViewWidthSizable = 2, NSViewHeightSizable = 16 };

@interface NSLayoutAnchor : NSObject {
  @public
    NSView* m_view;
    const char* m_edge;
}
- (NSLayoutConstraint*)constraintEqualToAnchor:(NSLayoutAnchor*)anchor;
@end

/// Along the x axis.
@interface NSLayoutXAxisAnchor : NSLayoutAnchor
@end

/// Along the y axis.
@interface NSLayoutYAxisAnchor : NSLayoutAnchor
@end

@interface NSLayoutConstraint : NSObject {
  @public
    NSLayoutAnchor* m_first;
    NSLayoutAnchor* m_second;
}
- (void)setActive:(BOOL)active;
@end

@interface NSView : NSResponder {
  @public
    NSRect m_frame;
    NSView* m_superview;
    NSWindow* m_window; ///< of the view at the top
    void* m_subviews;
    void* m_pins; ///< names of the edges that are tied to those of the superview
    NSAutoresizingMaskOptions m_autoresizing;
    BOOL m_translatesAutoresizing;
    BOOL m_needsDisplay;
    NSString* m_identifier;
    NSString* m_accessibilityLabel;
    BOOL m_isHidden;
}
- (instancetype)initWithFrame:(NSRect)frame;
- (NSRect)frame;
- (NSRect)bounds;
- (void)setFrame:(NSRect)frame;
- (BOOL)isHidden;
- (void)setHidden:(BOOL)hidden;
- (void)setAutoresizingMask:(NSAutoresizingMaskOptions)mask;
- (void)setTranslatesAutoresizingMaskIntoConstraints:(BOOL)translates;
- (NSLayoutXAxisAnchor*)leadingAnchor;
- (NSLayoutXAxisAnchor*)trailingAnchor;
- (NSLayoutYAxisAnchor*)topAnchor;
- (NSLayoutYAxisAnchor*)bottomAnchor;
- (void)addSubview:(NSView*)view;
- (void)removeFromSuperview;
- (NSWindow*)window;
- (NSView*)hitTest:(NSPoint)point;
- (void)setNeedsDisplay:(BOOL)needsDisplay;
- (void)drawRect:(NSRect)dirtyRect;
- (void)viewDidChangeBackingProperties;
- (NSAppearance*)effectiveAppearance;
- (void)viewDidChangeEffectiveAppearance;
- (NSString*)identifier;
- (void)setIdentifier:(NSString*)identifier;
- (void)setAccessibilityLabel:(NSString*)label;
@end

@interface NSViewController : NSResponder {
  @public
    NSView* m_view;
}
- (NSView*)view;
- (void)setView:(NSView*)view;
@end

@interface NSGraphicsContext : NSObject {
  @public
    CGContextRef m_context;
}
+ (NSGraphicsContext*)currentContext;
+ (NSGraphicsContext*)graphicsContextWithCGContext:(CGContextRef)context flipped:(BOOL)flipped;
+ (void)saveGraphicsState;
+ (void)restoreGraphicsState;
+ (void)setCurrentContext:(NSGraphicsContext*)context;
- (CGContextRef)CGContext;
@end
