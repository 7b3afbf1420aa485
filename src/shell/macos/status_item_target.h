#pragma once

#include "shell/status_item.h"

#include <AppKit/AppKit.h>

namespace orvelle {

/// Whoever wants to know which item was clicked.
class ClickListener {
  public:
    virtual ~ClickListener() = default;
    /// A button with this identifier was clicked. It need not belong to an item.
    virtual void clicked(const QString& identifier, ClickButton button) = 0;
};

} // namespace orvelle

/// What the buttons of the items send their clicks to.
@interface StatusItemTarget : NSObject {
  @private
    orvelle::ClickListener* m_listener;
}
/// The listener must live as long as the buttons send clicks.
- (instancetype)initWithListener:(orvelle::ClickListener*)listener;
/// The current event decides which button of the mouse it was. Without one nothing happens.
- (void)statusItemClicked:(NSStatusBarButton*)sender;
@end
