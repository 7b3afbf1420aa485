#pragma once

#include <Foundation/Foundation.h>

namespace orvelle {

/// Whoever wants to know that the program was opened again.
class ReopenListener {
  public:
    virtual ~ReopenListener() = default;
    virtual void reopened() = 0;
};

} // namespace orvelle

/// Hears that the user has opened the program once more while it runs, by a double click for instance.
@interface ReopenObserver : NSObject {
  @private
    orvelle::ReopenListener* m_listener;
}
/// The listener must live until the observer is told to stop.
- (instancetype)initWithListener:(orvelle::ReopenListener*)listener;
- (void)start;
- (void)stop;
@end
