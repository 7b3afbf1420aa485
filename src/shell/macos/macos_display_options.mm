#include "animation/animation_clock.h"
#include "shell/macos/foundation.h"
#include "shell/macos/macos_desktop.h"

#include <AppKit/AppKit.h>

namespace orvelle {
namespace {

/// Hears of changes to the user's options for display.
class DisplayOptionsListener {
  public:
    virtual ~DisplayOptionsListener() = default;
    /// Any of the accessibility options for display may have changed.
    virtual void displayOptionsChanged() = 0;
};

} // namespace
} // namespace orvelle

/// Hears of changes to the system's options for display.
@interface DisplayOptionsObserver : NSObject {
  @private
    orvelle::DisplayOptionsListener* m_listener;
}
/// The listener must live until `stop` is called.
- (instancetype)initWithListener:(orvelle::DisplayOptionsListener*)listener;
- (void)start;
- (void)stop;
@end

@implementation DisplayOptionsObserver

- (instancetype)initWithListener:(orvelle::DisplayOptionsListener*)listener {
    self = [super init];
    if (self != nil)
        m_listener = listener;
    return self;
}

- (void)start {
    [[[NSWorkspace sharedWorkspace] notificationCenter]
        addObserver:self
           selector:@selector(displayOptionsChanged:)
               name:NSWorkspaceAccessibilityDisplayOptionsDidChangeNotification
             object:nil];
}

- (void)stop {
    [[[NSWorkspace sharedWorkspace] notificationCenter] removeObserver:self];
}

- (void)displayOptionsChanged:(NSNotification*)notification {
    static_cast<void>(notification);
    m_listener->displayOptionsChanged();
}

@end

namespace orvelle {
namespace {

class ReducedMotionFollower final : public QObject, private DisplayOptionsListener {
  public:
    explicit ReducedMotionFollower(AnimationClock& clock)
        : m_clock(clock), m_observer([[DisplayOptionsObserver alloc] initWithListener:this]) {
        [m_observer.get() start];
        displayOptionsChanged();
    }
    ~ReducedMotionFollower() override {
        const ReleasePool pool;
        [m_observer.get() stop];
    }
    ReducedMotionFollower(const ReducedMotionFollower&) = delete;
    ReducedMotionFollower& operator=(const ReducedMotionFollower&) = delete;

  private:
    void displayOptionsChanged() override {
        m_clock.setReduced([[NSWorkspace sharedWorkspace] accessibilityDisplayShouldReduceMotion]);
    }

    AnimationClock& m_clock;
    Retained<DisplayOptionsObserver*> m_observer;
};

} // namespace

std::unique_ptr<QObject> followReducedMacosMotion(AnimationClock& clock) {
    const ReleasePool pool;
    return std::make_unique<ReducedMotionFollower>(clock);
}

} // namespace orvelle
