#include "shell/wayland/touch_input.h"

#include "shell/wayland/event_handlers.h"

#include <utility>
#include <wayland-client.h>

namespace orvelle {
namespace {

/// A finger that moves further than this, in points, is not staying.
constexpr double steadyDistance = 10;

} // namespace

const wl_touch_listener TouchInput::listener = [] {
    wl_touch_listener events{};
    events.down = onEvent<&TouchInput::handleDown>;
    events.up = onEvent<&TouchInput::handleUp>;
    events.motion = onEvent<&TouchInput::handleMotion>;
    events.frame = ignoredEvent;
    events.cancel = onEvent<&TouchInput::cancel>;
    return events;
}();

TouchInput::TouchInput(wl_seat* seat)
    : m_touch(wl_seat_get_touch(seat)) {
    wl_touch_add_listener(m_touch.get(), &listener, this);
    m_hold.setSingleShot(true);
    m_hold.setInterval(holdTime);
    m_hold.callOnTimeout(this, &TouchInput::clickRight);
}

TouchInput::~TouchInput() {
    cancel();
}

void TouchInput::handleDown(std::uint32_t /*serial*/, std::uint32_t /*time*/, wl_surface* surface,
                            std::int32_t finger, std::int32_t x, std::int32_t y) {
    if (m_finger)
        return;
    m_finger = finger;
    m_target = InputTarget::of(surface);
    m_start = m_position = pointOf(x, y);
    if (!m_target)
        return;
    m_hold.start();
    Q_EMIT m_target->pressed(m_position, Qt::LeftButton);
}

void TouchInput::handleUp(std::uint32_t /*serial*/, std::uint32_t /*time*/, std::int32_t finger) {
    if (m_finger != finger)
        return;
    m_finger.reset();
    m_hold.stop();
    if (InputTarget* target = std::exchange(m_target, {}))
        Q_EMIT target->released(m_position, Qt::LeftButton);
}

void TouchInput::handleMotion(std::uint32_t /*time*/, std::int32_t finger, std::int32_t x, std::int32_t y) {
    if (m_finger != finger)
        return;
    m_position = pointOf(x, y);
    if ((m_position - m_start).manhattanLength() > steadyDistance)
        m_hold.stop();
    if (m_target)
        Q_EMIT m_target->moved(m_position);
}

void TouchInput::cancel() {
    m_finger.reset();
    m_hold.stop();
    if (InputTarget* target = std::exchange(m_target, {}))
        Q_EMIT target->cancelled();
}

void TouchInput::clickRight() {
    const QPointer<InputTarget> target = std::exchange(m_target, {});
    if (target)
        Q_EMIT target->cancelled();
    if (target)
        Q_EMIT target->pressed(m_position, Qt::RightButton);
    if (target) // each may end it
        Q_EMIT target->released(m_position, Qt::RightButton);
}

} // namespace orvelle
