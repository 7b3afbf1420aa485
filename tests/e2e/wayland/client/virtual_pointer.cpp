#include "client/virtual_pointer.h"

#include "client/time_stamp.h"

#include <linux/input-event-codes.h>
#include <stdexcept>

namespace orvelle::wayland_client {
namespace {

std::uint32_t buttonCode(int button) {
    switch (button) {
    case 1:
        return BTN_LEFT;
    case 2:
        return BTN_MIDDLE;
    case 3:
        return BTN_RIGHT;
    default:
        throw std::runtime_error("there is no button " + std::to_string(button));
    }
}

} // namespace

VirtualPointer::VirtualPointer(Compositor& compositor)
    : m_compositor(compositor) {
    if (compositor.pointers == nullptr)
        throw std::runtime_error("the compositor has no virtual pointers");
    m_pointer = zwlr_virtual_pointer_manager_v1_create_virtual_pointer(compositor.pointers, compositor.seat);
}

VirtualPointer::~VirtualPointer() {
    zwlr_virtual_pointer_v1_destroy(m_pointer);
}

void VirtualPointer::move(int left, int top) {
    const Rectangle desktop = m_compositor.desktop();
    constexpr int parts = 100; // the compositor takes fractions of the desktop
    const auto middle = [](int place) { return static_cast<std::uint32_t>(place * parts + parts / 2); };
    const auto extent = [](int length) { return static_cast<std::uint32_t>(length * parts); };
    zwlr_virtual_pointer_v1_motion_absolute(m_pointer, timeStamp(), middle(left - desktop.left),
                                            middle(top - desktop.top), extent(desktop.width),
                                            extent(desktop.height));
    zwlr_virtual_pointer_v1_frame(m_pointer);
}

void VirtualPointer::press(int button) {
    setButton(button, WL_POINTER_BUTTON_STATE_PRESSED);
}

void VirtualPointer::release(int button) {
    setButton(button, WL_POINTER_BUTTON_STATE_RELEASED);
}

void VirtualPointer::setButton(int button, wl_pointer_button_state state) {
    zwlr_virtual_pointer_v1_button(m_pointer, timeStamp(), buttonCode(button), state);
    zwlr_virtual_pointer_v1_frame(m_pointer);
}

void VirtualPointer::turnWheel(int points) {
    zwlr_virtual_pointer_v1_axis_source(m_pointer, WL_POINTER_AXIS_SOURCE_WHEEL);
    zwlr_virtual_pointer_v1_axis_discrete(m_pointer, timeStamp(), WL_POINTER_AXIS_VERTICAL_SCROLL,
                                          wl_fixed_from_int(points), points > 0 ? 1 : -1);
    zwlr_virtual_pointer_v1_frame(m_pointer);
}

} // namespace orvelle::wayland_client
