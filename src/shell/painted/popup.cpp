#include "shell/painted/popup.h"

#include <QWindow>

#include <algorithm>
#include <cmath>
#include <utility>

namespace orvelle {
namespace {

constexpr std::chrono::milliseconds fadeStepTime{16};

/// The left edge nearest to `wanted` at which `width` points stay on the screen; the screen's left margin
/// when they do not fit.
int keptOnScreen(double wanted, int width, const QRect& screen) {
    const int first = screen.left() + screenMarginPoints;
    const int last = screen.left() + screen.width() - screenMarginPoints - width;
    return std::max(first, std::min(static_cast<int>(std::lround(wanted)), last));
}

} // namespace

QRect menuGeometry(const QRectF& item, const QSize& size, const QRect& screen) {
    return {
        QPoint(keptOnScreen(item.left(), size.width(), screen), static_cast<int>(std::ceil(item.bottom()))),
        size};
}

QRect popoverGeometry(const QRectF& item, const QSize& size, const QRect& screen) {
    const int top = static_cast<int>(std::ceil(item.bottom())) + screenMarginPoints;
    const int room = screen.top() + screen.height() - screenMarginPoints - top;
    return {keptOnScreen(item.center().x() - size.width() / 2.0, size.width(), screen), top, size.width(),
            std::clamp(room, 1, size.height())};
}

QRegion roundedRegion(const QSize& size, int radius) {
    QRegion region(0, radius, size.width(), size.height() - 2 * radius);
    for (int row = 0; row < radius; ++row) {
        const double fromCentre = radius - row - 0.5;
        const auto inset =
            static_cast<int>(std::lround(radius - std::sqrt(radius * radius - fromCentre * fromCentre)));
        region += QRect(inset, row, size.width() - 2 * inset, 1);
        region += QRect(inset, size.height() - 1 - row, size.width() - 2 * inset, 1);
    }
    return region;
}

WindowFade::WindowFade(QWindow& window, std::function<void(double)> setOpacity, AnimationClock& clock)
    : m_window(window)
    , m_setOpacity(std::move(setOpacity))
    , m_clock(clock)
    , m_animation(clock, [this](double seconds) { step(seconds); }) {}

void WindowFade::show(bool softly) {
    if (!m_window.isVisible())
        m_opacity.jump(0);
    fadeTo(1, softly ? inTime : std::chrono::milliseconds(0));
    m_window.show();
}

void WindowFade::hide(bool softly) {
    fadeTo(0, softly ? outTime : std::chrono::milliseconds(0));
    if (!m_animation.isRunning())
        m_window.hide();
}

void WindowFade::fadeTo(double opacity, std::chrono::milliseconds time) {
    static const QEasingCurve curve(QEasingCurve::OutQuad);
    if (time.count() == 0 || m_clock.isReduced()) {
        m_opacity.jump(opacity);
        m_animation.stop();
    } else {
        m_opacity.retarget(opacity, std::chrono::duration<double>(time).count(), curve);
        m_animation.start(fadeStepTime);
    }
    m_setOpacity(m_opacity.shown());
}

void WindowFade::step(double seconds) {
    m_opacity.advance(seconds);
    m_setOpacity(m_opacity.shown());
    if (!m_opacity.isSettled())
        return;
    m_animation.stop();
    if (m_opacity.target() == 0)
        m_window.hide();
}

} // namespace orvelle
