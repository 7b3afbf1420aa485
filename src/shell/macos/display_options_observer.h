#pragma once

#include <AppKit/AppKit.h>

namespace orvelle {

/// Whoever wants to know how the user wants things to be shown.
class DisplayOptionsListener {
  public:
    virtual ~DisplayOptionsListener() = default;
    /// Any of the options for people who see less well, or differently, may have changed.
    virtual void displayOptionsChanged() = 0;
};

} // namespace orvelle

/// Hears of changes to the system's options for display.
@interface DisplayOptionsObserver : NSObject {
  @private
    orvelle::DisplayOptionsListener* m_listener;
}
/// The listener must live until the observer is told to stop.
- (instancetype)initWithListener:(orvelle::DisplayOptionsListener*)listener;
- (void)start;
- (void)stop;
@end
