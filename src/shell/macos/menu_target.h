#pragma once

#include <AppKit/AppKit.h>

namespace orvelle {

/// Whoever wants to know what was chosen from a menu.
class MenuListener {
  public:
    virtual ~MenuListener() = default;
    /// The entry at this place in the list.
    virtual void chosen(NSInteger index) = 0;
};

} // namespace orvelle

/// What the entries of a menu send their choice to. Each has its place in the list as its tag.
@interface MenuTarget : NSObject {
  @private
    orvelle::MenuListener* m_listener;
}
/// The listener must live as long as entries send choices.
- (instancetype)initWithListener:(orvelle::MenuListener*)listener;
- (void)choose:(NSMenuItem*)sender;
@end
