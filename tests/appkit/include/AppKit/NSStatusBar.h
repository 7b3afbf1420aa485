#pragma once

#include <AppKit/NSApplication.h>

@interface NSMenuItem : NSObject {
  @public
    NSString* m_title;
    NSString* m_keyEquivalent;
    SEL m_action;
    id m_target;
    NSInteger m_tag;
}
+ (NSMenuItem*)separatorItem;
- (id)initWithTitle:(NSString*)title action:(SEL)action keyEquivalent:(NSString*)keyEquivalent;
- (void)setTarget:(id)target;
- (NSInteger)tag;
- (void)setTag:(NSInteger)tag;
@end

@interface NSMenu : NSObject {
  @public
    void* m_items;
}
- (void)addItem:(NSMenuItem*)item;
- (void)cancelTracking;
@end

@class NSStatusItem;

@interface NSStatusBarButton : NSView {
  @public
    NSStatusItem* m_item;
    id m_target;
    SEL m_action;
    NSEventMask m_actionMask;
    NSString* m_identifier;
    NSString* m_accessibilityLabel;
}
- (void)setTarget:(id)target;
- (void)setAction:(SEL)action;
- (NSInteger)sendActionOn:(NSEventMask)mask;
- (NSString*)identifier;
- (void)setIdentifier:(NSString*)identifier;
- (void)setAccessibilityLabel:(NSString*)label;
- (void)performClick:(id)sender;
@end

@interface NSStatusItem : NSObject {
  @public
    CGFloat m_length;
    NSStatusBarButton* m_button;
    NSMenu* m_menu;
}
- (NSStatusBarButton*)button;
- (void)setMenu:(NSMenu*)menu;
@end

@interface NSStatusBar : NSObject
+ (NSStatusBar*)systemStatusBar;
- (NSStatusItem*)statusItemWithLength:(CGFloat)length;
- (void)removeStatusItem:(NSStatusItem*)item;
@end
