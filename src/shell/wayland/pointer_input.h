#pragma once

#include "shell/wayland/arrow_cursor.h"
#include "shell/wayland/input_target.h"

#include <QPointer>

struct wl_pointer_listener;

namespace orvelle {

/// Tells the surface under the pointer of a seat what the pointer does. Turning the wheel is nothing.
class PointerInput {
public:
    /// The cursor must outlive the object.
    PointerInput(wl_seat* seat, ArrowCursor& cursor);
    ~PointerInput();
    PointerInput(const PointerInput&) = delete;
    PointerInput& operator=(const PointerInput&) = delete;

private:
    static const wl_pointer_listener listener;
    void handleEnter(std::uint32_t serial, wl_surface* surface, std::int32_t x, std::int32_t y);
    void handleLeave(std::uint32_t serial, wl_surface* surface);
    void handleMotion(std::uint32_t time, std::int32_t x, std::int32_t y);
    void handleButton(std::uint32_t serial, std::uint32_t time, std::uint32_t button, std::uint32_t state);
    void leave();

    ProxyPointer<wl_pointer> m_pointer;
    ArrowCursor& m_cursor;
    QPointer<InputTarget> m_target; ///< under the pointer; null for none
    QPointF m_position;             ///< in points of that surface
};

} // namespace orvelle
