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

@interface NSStatusBarButton : NSButton {
  @public
    NSStatusItem* m_item;
}
@end

typedef NSString* NSStatusItemAutosaveName;

@interface NSStatusItem : NSObject {
  @public
    CGFloat m_length;
    NSStatusBarButton* m_button;
    NSMenu* m_menu;
    NSString* m_autosaveName;
    double m_position; ///< counted from the right end of the bar
}
- (NSStatusBarButton*)button;
- (void)setAutosaveName:(NSStatusItemAutosaveName)name;
- (void)setMenu:(NSMenu*)menu;
@end

@interface NSStatusBar : NSObject
+ (NSStatusBar*)systemStatusBar;
- (NSStatusItem*)statusItemWithLength:(CGFloat)length;
- (void)removeStatusItem:(NSStatusItem*)item;
@end
