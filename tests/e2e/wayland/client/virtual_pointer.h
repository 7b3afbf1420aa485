#pragma once

#include "client/compositor.h"

namespace orvelle::wayland_client {

/// A mouse. Buttons have the numbers of X: 1 is the left one, 2 the middle one, 3 the right one.
class VirtualPointer {
public:
    /// Throws std::runtime_error when the compositor has no virtual pointers.
    explicit VirtualPointer(Compositor& compositor);
    ~VirtualPointer();
    VirtualPointer(const VirtualPointer&) = delete;
    VirtualPointer& operator=(const VirtualPointer&) = delete;

    /// Moves to the middle of the point of the desktop with this left upper corner.
    void move(int left, int top);
    void press(int button);
    void release(int button);
    /// Turns the wheel; a positive number of points scrolls down.
    void turnWheel(int points);

private:
    void setButton(int button, wl_pointer_button_state state);

    Compositor& m_compositor;
    zwlr_virtual_pointer_v1* m_pointer;
};

} // namespace orvelle::wayland_client
