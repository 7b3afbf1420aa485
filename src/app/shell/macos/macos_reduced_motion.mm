#include "app/shell/desktop.h"
#include "app/shell/macos/display_options_observer.h"
#include "app/shell/macos/retained.h"
#include "charts/motion.h"

#include <QObject>

namespace orvelle {
namespace {

class ReducedMotionFollower final : public QObject, private DisplayOptionsListener {
  public:
    explicit ReducedMotionFollower(Motion& motion)
        : m_motion(motion), m_observer([[DisplayOptionsObserver alloc] initWithListener:this]) {
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
        m_motion.setReduced([[NSWorkspace sharedWorkspace] accessibilityDisplayShouldReduceMotion]);
    }

    Motion& m_motion;
    Retained<DisplayOptionsObserver*> m_observer;
};

} // namespace

std::unique_ptr<QObject> followReducedMotion(Motion& motion) {
    const ReleasePool pool;
    return std::make_unique<ReducedMotionFollower>(motion);
}

} // namespace orvelle
