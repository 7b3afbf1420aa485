#pragma once

#include <AppKit/AppKit.h>

namespace orvelle {

/// Whoever wants to know what becomes of a popover that is shown.
class PopoverListener {
  public:
    virtual ~PopoverListener() = default;
    /// Whether it may close by itself now.
    [[nodiscard]] virtual bool mayClose() const = 0;
    /// It begins to close, for whatever reason.
    virtual void willClose() = 0;
    /// It cannot be seen any more.
    virtual void didClose() = 0;
};

} // namespace orvelle

/// Passes on what the system says of a popover.
@interface PopoverObserver : NSObject <NSPopoverDelegate> {
  @private
    orvelle::PopoverListener* m_listener;
}
/// The listener must live as long as this is the delegate of a popover.
- (instancetype)initWithListener:(orvelle::PopoverListener*)listener;
@end
