#include "animation/animation_clock.h"
#include "shell/desktop.h"
#include "shell/macos/display_options_observer.h"
#include "shell/macos/retained.h"

#include <QObject>

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

std::unique_ptr<QObject> followReducedMotion(AnimationClock& clock) {
    const ReleasePool pool;
    return std::make_unique<ReducedMotionFollower>(clock);
}

} // namespace orvelle
