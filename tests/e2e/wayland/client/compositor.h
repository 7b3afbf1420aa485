#pragma once

// The generated headers come without warnings in mind.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wconversion"
#include "virtual-keyboard-unstable-v1-client.h"
#include "wlr-screencopy-unstable-v1-client.h"
#include "wlr-virtual-pointer-unstable-v1-client.h"
#include "xdg-output-unstable-v1-client.h"
#include "xdg-shell-client.h"

#include <wayland-client.h>
#pragma GCC diagnostic pop

#include <chrono>
#include <cstdint>
#include <list>
#include <set>
#include <string>
#include <string_view>

namespace orvelle::wayland_client {

/// A rectangle of the desktop, in points.
struct Rectangle {
    int left = 0, top = 0, width = 0, height = 0;
};

struct Output {
    std::uint32_t globalName = 0; ///< identifies the output while it exists
    wl_output* object = nullptr;
    zxdg_output_v1* description = nullptr;
    std::string name;    ///< such as HEADLESS-1
    Rectangle rectangle; ///< where it lies on the desktop
};

/// A connection to the compositor, with the interfaces that the client needs. An interface that the
/// compositor does not have is null.
class Compositor {
public:
    /// Throws std::runtime_error when there is no compositor.
    Compositor();
    ~Compositor();
    Compositor(const Compositor&) = delete;
    Compositor& operator=(const Compositor&) = delete;

    /// Returns when the compositor has handled all requests, and this client all events. Throws
    /// std::runtime_error when the compositor has ended.
    void synchronize();

    /// Handles the next events. Returns false when the compositor has ended.
    [[nodiscard]] bool handleEvents();

    /// Handles the events of this period.
    void handleEventsFor(std::chrono::milliseconds period);

    /// Throws std::runtime_error when there is no such output.
    [[nodiscard]] const Output& output(std::string_view name) const;

    /// The smallest rectangle around all outputs.
    [[nodiscard]] Rectangle desktop() const;

    /// One more object for the seat. A listener that is added to it at once hears of the seat's devices.
    [[nodiscard]] wl_seat* bindSeat() const;

    std::set<std::string, std::less<>> interfaces; ///< all that the compositor has announced
    wl_display* display = nullptr;
    wl_compositor* surfaces = nullptr;
    wl_shm* memory = nullptr;
    wl_seat* seat = nullptr;
    xdg_wm_base* windows = nullptr;
    zwlr_virtual_pointer_manager_v1* pointers = nullptr;
    zwp_virtual_keyboard_manager_v1* keyboards = nullptr;
    zwlr_screencopy_manager_v1* screens = nullptr;

private:
    void announce(std::uint32_t name, std::string_view interface);
    void announceOutput(std::uint32_t name);
    void describe(Output& output);
    void remove(std::uint32_t name);

    wl_registry* m_registry = nullptr;
    std::uint32_t m_seatName = 0;
    zxdg_output_manager_v1* m_descriptions = nullptr;
    std::list<Output> m_outputs;
};

} // namespace orvelle::wayland_client
