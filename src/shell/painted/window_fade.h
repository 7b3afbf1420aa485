#pragma once

#include "animation/animation_clock.h"
#include "animation/transition.h"

class QWindow;

namespace orvelle {

/// Lets a window appear and disappear softly, by its opacity as a whole, which the desktop applies without
/// the window being painted again. Where nothing may move it does both at once.
class WindowFade {
public:
    static constexpr std::chrono::milliseconds inTime{120};
    static constexpr std::chrono::milliseconds outTime{90};

    /// The window must outlive the object.
    explicit WindowFade(QWindow& window, AnimationClock& clock = AnimationClock::shared());

    /// Shows the window. `softly` wherever the desktop respects the opacity of windows.
    void show(bool softly);
    /// Hides the window, at once or when it has faded.
    void hide(bool softly);

private:
    void fadeTo(double opacity, std::chrono::milliseconds time);
    void step(double seconds);

    QWindow& m_window;
    AnimationClock& m_clock;
    Transition<double> m_opacity{1.0};
    Animation m_part;
};

} // namespace orvelle
