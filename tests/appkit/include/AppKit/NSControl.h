#pragma once

#include <AppKit/NSView.h>

typedef unsigned long long NSEventMask;

@interface NSControl : NSView {
  @public
    id m_target;
    SEL m_action;
    NSEventMask m_actionMask;
}
- (void)setTarget:(id)target;
- (void)setAction:(SEL)action;
- (NSInteger)sendActionOn:(NSEventMask)mask;
- (void)performClick:(id)sender;
@end

@interface NSButton : NSControl
@end
