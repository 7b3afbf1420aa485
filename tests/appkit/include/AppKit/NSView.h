#pragma once

#include <Foundation/Foundation.h>

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

@interface NSLayoutConstraint : NSObject {
  @public
    NSLayoutAnchor* m_first;
    NSLayoutAnchor* m_second;
}
- (void)setActive:(BOOL)active;
@end

@interface NSView : NSObject {
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
}
- (id)initWithFrame:(NSRect)frame;
- (NSRect)bounds;
- (void)setFrame:(NSRect)frame;
- (void)setAutoresizingMask:(NSAutoresizingMaskOptions)mask;
- (void)setTranslatesAutoresizingMaskIntoConstraints:(BOOL)translates;
- (NSLayoutAnchor*)leadingAnchor;
- (NSLayoutAnchor*)trailingAnchor;
- (NSLayoutAnchor*)topAnchor;
- (NSLayoutAnchor*)bottomAnchor;
- (void)addSubview:(NSView*)view;
- (void)removeFromSuperview;
- (NSWindow*)window;
- (NSView*)hitTest:(NSPoint)point;
- (void)setNeedsDisplay:(BOOL)needsDisplay;
- (void)drawRect:(NSRect)dirtyRect;
- (void)viewDidChangeBackingProperties;
- (NSString*)identifier;
- (void)setIdentifier:(NSString*)identifier;
- (void)setAccessibilityLabel:(NSString*)label;
@end

@interface NSViewController : NSObject {
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
