#include "shell/wayland/fake_seat.h"

#include "shell/wayland/fake_protocol.h"
#include "shell/wayland/fake_surface.h"

#include <wayland-server.h>

namespace orvelle {
namespace {

FakeSeat& seatOf(wl_resource* resource) {
    return *static_cast<FakeSeat*>(wl_resource_get_user_data(resource));
}

const struct wl_pointer_interface pointerFunctions = [] {
    struct wl_pointer_interface functions{};
    functions.set_cursor = [](wl_client*, wl_resource* resource, std::uint32_t, wl_resource* surface, int,
                              int) {
        const auto* cursor =
            surface == nullptr ? nullptr : static_cast<FakeSurface*>(wl_resource_get_user_data(surface));
        seatOf(resource).m_cursorScale = cursor == nullptr ? 0 : cursor->bufferScale;
    };
    functions.release = destroyResource;
    return functions;
}();

const struct wl_touch_interface touchFunctions = [] {
    struct wl_touch_interface functions{};
    functions.release = destroyResource;
    return functions;
}();

const struct wl_keyboard_interface keyboardFunctions{destroyResource};

const struct wl_seat_interface seatFunctions = [] {
    struct wl_seat_interface functions{};
    functions.get_pointer = [](wl_client* client, wl_resource* seat, std::uint32_t id) {
        wl_resource* resource =
            wl_resource_create(client, &wl_pointer_interface, wl_resource_get_version(seat), id);
        wl_resource_set_implementation(resource, &pointerFunctions, &seatOf(seat), [](wl_resource* ended) {
            std::erase(seatOf(ended).m_pointers, ended);
        });
        seatOf(seat).m_pointers.push_back(resource);
    };
    functions.get_touch = [](wl_client* client, wl_resource* seat, std::uint32_t id) {
        wl_resource* resource =
            wl_resource_create(client, &wl_touch_interface, wl_resource_get_version(seat), id);
        wl_resource_set_implementation(resource, &touchFunctions, &seatOf(seat), [](wl_resource* ended) {
            std::erase(seatOf(ended).m_touches, ended);
        });
        seatOf(seat).m_touches.push_back(resource);
    };
    functions.get_keyboard = [](wl_client* client, wl_resource* seat, std::uint32_t id) {
        wl_resource* resource =
            wl_resource_create(client, &wl_keyboard_interface, wl_resource_get_version(seat), id);
        wl_resource_set_implementation(resource, &keyboardFunctions, &seatOf(seat), [](wl_resource* ended) {
            std::erase(seatOf(ended).m_keyboards, ended);
        });
        seatOf(seat).m_keyboards.push_back(resource);
    };
    functions.release = destroyResource;
    return functions;
}();

void bindSeat(wl_client* client, void* data, std::uint32_t version, std::uint32_t id) {
    auto& seat = *static_cast<FakeSeat*>(data);
    wl_resource* resource = wl_resource_create(client, &wl_seat_interface, static_cast<int>(version), id);
    wl_resource_set_implementation(resource, &seatFunctions, data,
                                   [](wl_resource* ended) { std::erase(seatOf(ended).m_seats, ended); });
    seat.m_seats.push_back(resource);
    wl_seat_send_capabilities(resource, seat.m_capabilities);
    if (version >= WL_SEAT_NAME_SINCE_VERSION)
        wl_seat_send_name(resource, "seat0");
}

constexpr std::uint32_t noTime = 0;

} // namespace

FakeSeat::FakeSeat(wl_display* display, std::uint32_t version)
    : m_capabilities(WL_SEAT_CAPABILITY_POINTER | WL_SEAT_CAPABILITY_TOUCH)
    , m_display(display)
    , m_global(wl_global_create(display, &wl_seat_interface, static_cast<int>(version), this, bindSeat)) {}

FakeSeat::~FakeSeat() {
    wl_global_destroy(m_global);
    for (const auto* resources : {&m_seats, &m_pointers, &m_touches, &m_keyboards}) {
        for (wl_resource* resource : *resources)
            wl_resource_set_destructor(resource, nullptr);
    }
}

void FakeSeat::setCapabilities(bool hasPointer, bool hasTouch, bool hasKeyboard) {
    m_capabilities = (hasPointer ? std::uint32_t{WL_SEAT_CAPABILITY_POINTER} : 0) |
                     (hasTouch ? std::uint32_t{WL_SEAT_CAPABILITY_TOUCH} : 0) |
                     (hasKeyboard ? std::uint32_t{WL_SEAT_CAPABILITY_KEYBOARD} : 0);
    for (wl_resource* resource : m_seats)
        wl_seat_send_capabilities(resource, m_capabilities);
}

void FakeSeat::focus(const FakeSurface* surface) {
    wl_array keysDown;
    wl_array_init(&keysDown);
    for (wl_resource* keyboard : m_keyboards) {
        if (m_focused != nullptr)
            wl_keyboard_send_leave(keyboard, nextSerial(), m_focused);
        if (surface != nullptr)
            wl_keyboard_send_enter(keyboard, nextSerial(), surface->resource, &keysDown);
    }
    m_focused = surface == nullptr ? nullptr : surface->resource;
    wl_array_release(&keysDown);
}

bool FakeSeat::isFocused(const FakeSurface& surface) const {
    return m_focused == surface.resource;
}

void FakeSeat::pressKey(std::uint32_t key) {
    for (wl_resource* keyboard : m_keyboards) {
        wl_keyboard_send_key(keyboard, nextSerial(), noTime, key, WL_KEYBOARD_KEY_STATE_PRESSED);
        wl_keyboard_send_key(keyboard, nextSerial(), noTime, key, WL_KEYBOARD_KEY_STATE_RELEASED);
    }
}

std::uint32_t FakeSeat::nextSerial() const {
    return wl_display_next_serial(m_display);
}

void FakeSeat::endPointerFrame() {
    for (wl_resource* pointer : m_pointers) {
        if (wl_resource_get_version(pointer) >= WL_POINTER_FRAME_SINCE_VERSION)
            wl_pointer_send_frame(pointer);
    }
}

void FakeSeat::enter(const FakeSurface& surface, const QPointF& position) {
    for (wl_resource* pointer : m_pointers)
        wl_pointer_send_enter(pointer, nextSerial(), surface.resource, wl_fixed_from_double(position.x()),
                              wl_fixed_from_double(position.y()));
    endPointerFrame();
}

void FakeSeat::leave(const FakeSurface& surface) {
    for (wl_resource* pointer : m_pointers)
        wl_pointer_send_leave(pointer, nextSerial(), surface.resource);
    endPointerFrame();
}

void FakeSeat::move(const QPointF& position) {
    for (wl_resource* pointer : m_pointers)
        wl_pointer_send_motion(pointer, noTime, wl_fixed_from_double(position.x()),
                               wl_fixed_from_double(position.y()));
    endPointerFrame();
}

void FakeSeat::press(std::uint32_t button) {
    setButton(button, WL_POINTER_BUTTON_STATE_PRESSED);
}

void FakeSeat::release(std::uint32_t button) {
    setButton(button, WL_POINTER_BUTTON_STATE_RELEASED);
}

void FakeSeat::setButton(std::uint32_t button, std::uint32_t state) {
    for (wl_resource* pointer : m_pointers)
        wl_pointer_send_button(pointer, nextSerial(), noTime, button, state);
    endPointerFrame();
}

void FakeSeat::turnWheel() {
    constexpr double oneNotch = 10;
    for (wl_resource* pointer : m_pointers) {
        if (wl_resource_get_version(pointer) >= WL_POINTER_AXIS_SOURCE_SINCE_VERSION)
            wl_pointer_send_axis_source(pointer, WL_POINTER_AXIS_SOURCE_WHEEL);
        if (wl_resource_get_version(pointer) >= WL_POINTER_AXIS_DISCRETE_SINCE_VERSION)
            wl_pointer_send_axis_discrete(pointer, WL_POINTER_AXIS_VERTICAL_SCROLL, 1);
        wl_pointer_send_axis(pointer, noTime, WL_POINTER_AXIS_VERTICAL_SCROLL,
                             wl_fixed_from_double(oneNotch));
        if (wl_resource_get_version(pointer) >= WL_POINTER_AXIS_STOP_SINCE_VERSION)
            wl_pointer_send_axis_stop(pointer, noTime, WL_POINTER_AXIS_VERTICAL_SCROLL);
    }
    endPointerFrame();
}

void FakeSeat::touch(const FakeSurface& surface, std::int32_t finger, const QPointF& position) {
    for (wl_resource* touch : m_touches) {
        wl_touch_send_down(touch, nextSerial(), noTime, surface.resource, finger,
                           wl_fixed_from_double(position.x()), wl_fixed_from_double(position.y()));
        wl_touch_send_frame(touch);
    }
}

void FakeSeat::moveFinger(std::int32_t finger, const QPointF& position) {
    for (wl_resource* touch : m_touches) {
        wl_touch_send_motion(touch, noTime, finger, wl_fixed_from_double(position.x()),
                             wl_fixed_from_double(position.y()));
        wl_touch_send_frame(touch);
    }
}

void FakeSeat::lift(std::int32_t finger) {
    for (wl_resource* touch : m_touches) {
        wl_touch_send_up(touch, nextSerial(), noTime, finger);
        wl_touch_send_frame(touch);
    }
}

void FakeSeat::cancelTouch() {
    for (wl_resource* touch : m_touches)
        wl_touch_send_cancel(touch);
}

} // namespace orvelle
