#pragma once

#include <AppKit/NSView.h>

typedef NSUInteger NSWindowStyleMask;
enum : NSWindowStyleMask {
    NSWindowStyleMaskTitled = 1 << 0,
    NSWindowStyleMaskClosable = 1 << 1,
    NSWindowStyleMaskMiniaturizable = 1 << 2,
    NSWindowStyleMaskFullSizeContentView = 1 << 15
};
enum NSBackingStoreType : NSUInteger { NSBackingStoreBuffered = 2 };
enum NSWindowTitleVisibility : NSInteger { NSWindowTitleVisible = 0, NSWindowTitleHidden = 1 };
typedef NSUInteger NSWindowOcclusionState;
enum : NSWindowOcclusionState { NSWindowOcclusionStateVisible = 1 << 1 };
@interface NSColor : NSObject {
  @public
    CGFloat m_white;
    CGFloat m_alpha;
}
+ (NSColor*)colorWithWhite:(CGFloat)white alpha:(CGFloat)alpha;
@end

@protocol NSWindowDelegate <NSObject>
@optional
- (void)windowWillClose:(NSNotification*)notification;
@end

extern "C" NSNotificationName const NSWindowDidBecomeKeyNotification;

@interface NSWindow : NSResponder {
  @public
    void* m_record; ///< what the tests ask for
    NSView* m_contentView;
    NSAppearance* m_appearance;
    NSColor* m_backgroundColor;
    id<NSWindowDelegate> m_delegate; ///< not retained
}
- (instancetype)initWithContentRect:(NSRect)contentRect
                          styleMask:(NSWindowStyleMask)style
                            backing:(NSBackingStoreType)backing
                              defer:(BOOL)defer;
- (void)setTitle:(NSString*)title;
- (void)setTitlebarAppearsTransparent:(BOOL)transparent;
- (void)setTitleVisibility:(NSWindowTitleVisibility)visibility;
- (void)setMovableByWindowBackground:(BOOL)movable;
- (void)setReleasedWhenClosed:(BOOL)released;
- (void)setAppearance:(NSAppearance*)appearance;
- (void)setBackgroundColor:(NSColor*)color;
- (void)setDelegate:(id<NSWindowDelegate>)delegate;
- (NSView*)contentView;
- (NSRect)contentLayoutRect;
- (void)center;
- (BOOL)setFrameAutosaveName:(NSString*)name;
- (void)makeKeyAndOrderFront:(id)sender;
- (void)makeKeyWindow;
- (BOOL)isKeyWindow;
- (BOOL)isMiniaturized;
- (void)deminiaturize:(id)sender;
- (BOOL)makeFirstResponder:(NSResponder*)responder;
- (void)close;
- (CGFloat)backingScaleFactor;
- (NSWindowOcclusionState)occlusionState;
@end
