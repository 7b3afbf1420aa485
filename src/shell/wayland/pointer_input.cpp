#include "shell/wayland/pointer_input.h"

#include "shell/wayland/event_handlers.h"

#include <linux/input-event-codes.h>
#include <wayland-client.h>

namespace orvelle {
namespace {

Qt::MouseButton mouseButton(std::uint32_t code) {
    switch (code) {
    case BTN_LEFT:
        return Qt::LeftButton;
    case BTN_RIGHT:
        return Qt::RightButton;
    case BTN_MIDDLE:
        return Qt::MiddleButton;
    default:
        return Qt::ExtraButton1;
    }
}

} // namespace

const wl_pointer_listener PointerInput::listener = [] {
    wl_pointer_listener events{};
    events.enter = onEvent<&PointerInput::handleEnter>;
    events.leave = onEvent<&PointerInput::handleLeave>;
    events.motion = onEvent<&PointerInput::handleMotion>;
    events.button = onEvent<&PointerInput::handleButton>;
    events.axis = ignoredEvent;
    events.frame = ignoredEvent;
    events.axis_source = ignoredEvent;
    events.axis_stop = ignoredEvent;
    events.axis_discrete = ignoredEvent;
    return events;
}();

PointerInput::PointerInput(wl_seat* seat, ArrowCursor& cursor)
    : m_pointer(wl_seat_get_pointer(seat))
    , m_cursor(cursor) {
    wl_pointer_add_listener(m_pointer.get(), &listener, this);
}

PointerInput::~PointerInput() {
    leave();
}

void PointerInput::handleEnter(std::uint32_t serial, wl_surface* surface, std::int32_t x, std::int32_t y) {
    leave();
    m_target = InputTarget::of(surface);
    m_position = pointOf(x, y);
    m_cursor.show(m_pointer.get(), serial);
}

void PointerInput::handleLeave(std::uint32_t /*serial*/, wl_surface* /*surface*/) {
    leave();
}

void PointerInput::leave() {
    if (m_target)
        Q_EMIT m_target->cancelled();
    m_target.clear();
}

void PointerInput::handleMotion(std::uint32_t /*time*/, std::int32_t x, std::int32_t y) {
    m_position = pointOf(x, y);
    if (m_target)
        Q_EMIT m_target->moved(m_position);
}

void PointerInput::handleButton(std::uint32_t /*serial*/, std::uint32_t /*time*/, std::uint32_t button,
                                std::uint32_t state) {
    if (!m_target)
        return;
    if (state == WL_POINTER_BUTTON_STATE_PRESSED)
        Q_EMIT m_target->pressed(m_position, mouseButton(button));
    else
        Q_EMIT m_target->released(m_position, mouseButton(button));
}

} // namespace orvelle
