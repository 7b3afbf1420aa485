#pragma once

#include <Foundation/Foundation.h>

namespace orvelle {

/// Releases at its end every object that was lent while it lived. Work that a timer of Qt starts needs one,
/// because the pool of the main loop is drained at the next event of the user, which may be hours away. A
/// program without a window has no such pool at all.
class ReleasePool {
  public:
    ReleasePool() = default;
    ~ReleasePool() { [m_pool release]; }
    ReleasePool(const ReleasePool&) = delete;
    ReleasePool& operator=(const ReleasePool&) = delete;

  private:
    NSAutoreleasePool* m_pool = [[NSAutoreleasePool alloc] init];
};

} // namespace orvelle
