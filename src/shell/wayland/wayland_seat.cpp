#include "shell/wayland/wayland_seat.h"

#include "shell/wayland/event_handlers.h"

#include <wayland-client.h>

namespace orvelle {
namespace {

/// Events of later versions add nothing to a click.
constexpr std::uint32_t seatVersion = 5;

} // namespace

const wl_seat_listener WaylandSeat::listener = [] {
    wl_seat_listener events{};
    events.capabilities = onEvent<&WaylandSeat::handleCapabilities>;
    events.name = ignoredEvent;
    return events;
}();

WaylandSeat::WaylandSeat(const WaylandGlobals& globals, const WaylandGlobal& global, ArrowCursor& cursor)
    : m_seat(globals.bind<wl_seat>(global, wl_seat_interface, seatVersion))
    , m_globalName(global.name)
    , m_cursor(cursor) {
    wl_seat_add_listener(m_seat.get(), &listener, this);
}

void WaylandSeat::handleCapabilities(std::uint32_t capabilities) {
    const bool hasPointer = (capabilities & WL_SEAT_CAPABILITY_POINTER) != 0;
    const bool hasTouch = (capabilities & WL_SEAT_CAPABILITY_TOUCH) != 0;
    if (hasPointer != (m_pointer != nullptr))
        m_pointer = hasPointer ? std::make_unique<PointerInput>(m_seat.get(), m_cursor) : nullptr;
    if (hasTouch != (m_touch != nullptr))
        m_touch = hasTouch ? std::make_unique<TouchInput>(m_seat.get()) : nullptr;
}

WaylandSeats::WaylandSeats(const WaylandGlobals& globals, ArrowCursor& cursor)
    : m_globals(globals)
    , m_cursor(cursor) {
    connect(&globals, &WaylandGlobals::announced, this, &WaylandSeats::add);
    connect(&globals, &WaylandGlobals::removed, this, &WaylandSeats::remove);
}

void WaylandSeats::add(const WaylandGlobal& global) {
    if (global.interface == wl_seat_interface.name)
        m_seats.push_back(std::make_unique<WaylandSeat>(m_globals, global, m_cursor));
}

void WaylandSeats::remove(std::uint32_t name) {
    std::erase_if(m_seats, [name](const auto& seat) { return seat->globalName() == name; });
}

} // namespace orvelle
