#pragma once

#include "shell/wayland/pointer_input.h"
#include "shell/wayland/touch_input.h"
#include "shell/wayland/wayland_globals.h"

#include <memory>
#include <vector>

struct wl_seat_listener;

namespace orvelle {

/// One user's pointer and touch screen, which may come and go.
class WaylandSeat {
public:
    WaylandSeat(const WaylandGlobals& globals, const WaylandGlobal& global, ArrowCursor& cursor);

    /// The number of the global.
    [[nodiscard]] std::uint32_t globalName() const { return m_globalName; }

private:
    static const wl_seat_listener listener;
    void handleCapabilities(std::uint32_t capabilities);

    ProxyPointer<wl_seat> m_seat;
    std::uint32_t m_globalName;
    ArrowCursor& m_cursor;
    std::unique_ptr<PointerInput> m_pointer; ///< null while there is none
    std::unique_ptr<TouchInput> m_touch;     ///< null while there is none
};

/// All seats of the compositor.
class WaylandSeats final : public QObject {
    Q_OBJECT

public:
    /// Both must outlive the object.
    WaylandSeats(const WaylandGlobals& globals, ArrowCursor& cursor);

private:
    void add(const WaylandGlobal& global);
    void remove(std::uint32_t name);

    const WaylandGlobals& m_globals;
    ArrowCursor& m_cursor;
    std::vector<std::unique_ptr<WaylandSeat>> m_seats;
};

} // namespace orvelle
