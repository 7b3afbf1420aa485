#pragma once

#include <Foundation/Foundation.h>

@class NSEvent;

/// What can be asked to handle an event, and whom it asks next.
@interface NSResponder : NSObject {
  @public
    NSResponder* m_nextResponder; ///< not retained
}
- (NSResponder*)nextResponder;
- (void)setNextResponder:(NSResponder*)responder;
- (BOOL)acceptsFirstResponder;
- (BOOL)becomeFirstResponder;
- (BOOL)resignFirstResponder;
- (void)keyDown:(NSEvent*)event;
@end
