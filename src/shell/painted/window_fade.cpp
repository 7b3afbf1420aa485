#include "shell/painted/window_fade.h"

#include <QWindow>

namespace orvelle {
namespace {

constexpr std::chrono::milliseconds stepTime{16};

} // namespace

WindowFade::WindowFade(QWindow& window, AnimationClock& clock)
    : m_window(window)
    , m_clock(clock)
    , m_part(clock, [this](double seconds) { step(seconds); }) {}

void WindowFade::show(bool softly) {
    if (!m_window.isVisible())
        m_opacity.jump(0);
    fadeTo(1, softly ? inTime : std::chrono::milliseconds(0));
    m_window.show();
}

void WindowFade::hide(bool softly) {
    fadeTo(0, softly ? outTime : std::chrono::milliseconds(0));
    if (!m_part.isRunning())
        m_window.hide();
}

void WindowFade::fadeTo(double opacity, std::chrono::milliseconds time) {
    static const QEasingCurve curve(QEasingCurve::OutQuad);
    if (time.count() == 0 || m_clock.isReduced()) {
        m_opacity.jump(opacity);
        m_part.stop();
    } else {
        m_opacity.retarget(opacity, std::chrono::duration<double>(time).count(), curve);
        m_part.start(stepTime);
    }
    m_window.setOpacity(m_opacity.shown());
}

void WindowFade::step(double seconds) {
    m_opacity.advance(seconds);
    m_window.setOpacity(m_opacity.shown());
    if (!m_opacity.isSettled())
        return;
    m_part.stop();
    if (m_opacity.target() == 0)
        m_window.hide();
}

} // namespace orvelle
