#include "client/compositor.h"

#include <algorithm>
#include <poll.h>
#include <stdexcept>

namespace orvelle::wayland_client {
namespace {

template <typename Proxy>
Proxy* bind(wl_registry* registry, std::uint32_t name, const wl_interface& interface, std::uint32_t version) {
    return static_cast<Proxy*>(wl_registry_bind(registry, name, &interface, version));
}

const wl_output_listener outputListener{
    .geometry = [](void*, wl_output*, int, int, int, int, int, const char*, const char*, int) {},
    .mode = [](void*, wl_output*, std::uint32_t, int, int, int) {},
    .done = [](void*, wl_output*) {},
    .scale = [](void*, wl_output*, int) {},
    .name = [](void* output, wl_output*, const char* name) { static_cast<Output*>(output)->name = name; },
    .description = [](void*, wl_output*, const char*) {},
};

const zxdg_output_v1_listener descriptionListener{
    .logical_position =
        [](void* output, zxdg_output_v1*, int left, int top) {
            static_cast<Output*>(output)->rectangle.left = left;
            static_cast<Output*>(output)->rectangle.top = top;
        },
    .logical_size =
        [](void* output, zxdg_output_v1*, int width, int height) {
            static_cast<Output*>(output)->rectangle.width = width;
            static_cast<Output*>(output)->rectangle.height = height;
        },
    .done = [](void*, zxdg_output_v1*) {},
    .name = [](void*, zxdg_output_v1*, const char*) {},
    .description = [](void*, zxdg_output_v1*, const char*) {},
};

const xdg_wm_base_listener windowsListener{
    .ping = [](void*, xdg_wm_base* windows, std::uint32_t serial) { xdg_wm_base_pong(windows, serial); }};

} // namespace

Compositor::Compositor()
    : display(wl_display_connect(nullptr)) {
    if (display == nullptr)
        throw std::runtime_error("there is no compositor");
    m_registry = wl_display_get_registry(display);
    static const wl_registry_listener listener{
        [](void* self, wl_registry*, std::uint32_t name, const char* interface, std::uint32_t) {
            static_cast<Compositor*>(self)->announce(name, interface);
        },
        [](void* self, wl_registry*, std::uint32_t name) { static_cast<Compositor*>(self)->remove(name); }};
    wl_registry_add_listener(m_registry, &listener, this);
    synchronize(); // the interfaces
    synchronize(); // what the outputs tell of themselves
}

Compositor::~Compositor() {
    wl_display_disconnect(display);
}

void Compositor::announce(std::uint32_t name, std::string_view interface) {
    interfaces.emplace(interface);
    if (interface == wl_compositor_interface.name)
        surfaces = bind<wl_compositor>(m_registry, name, wl_compositor_interface, 4);
    else if (interface == wl_shm_interface.name)
        memory = bind<wl_shm>(m_registry, name, wl_shm_interface, 1);
    else if (interface == wl_seat_interface.name) {
        m_seatName = name;
        seat = bindSeat();
    } else if (interface == zwlr_virtual_pointer_manager_v1_interface.name)
        pointers = bind<zwlr_virtual_pointer_manager_v1>(m_registry, name,
                                                         zwlr_virtual_pointer_manager_v1_interface, 1);
    else if (interface == zwp_virtual_keyboard_manager_v1_interface.name)
        keyboards = bind<zwp_virtual_keyboard_manager_v1>(m_registry, name,
                                                          zwp_virtual_keyboard_manager_v1_interface, 1);
    else if (interface == zwlr_screencopy_manager_v1_interface.name)
        screens = bind<zwlr_screencopy_manager_v1>(m_registry, name, zwlr_screencopy_manager_v1_interface, 1);
    else if (interface == xdg_wm_base_interface.name) {
        windows = bind<xdg_wm_base>(m_registry, name, xdg_wm_base_interface, 1);
        xdg_wm_base_add_listener(windows, &windowsListener, nullptr);
    } else if (interface == zxdg_output_manager_v1_interface.name) {
        m_descriptions = bind<zxdg_output_manager_v1>(m_registry, name, zxdg_output_manager_v1_interface, 2);
        std::ranges::for_each(m_outputs, [this](Output& output) { describe(output); });
    } else if (interface == wl_output_interface.name)
        announceOutput(name);
}

void Compositor::announceOutput(std::uint32_t name) {
    Output& output = m_outputs.emplace_back();
    output.globalName = name;
    output.object = bind<wl_output>(m_registry, name, wl_output_interface, 4); // 4 tells the name
    wl_output_add_listener(output.object, &outputListener, &output);
    describe(output);
}

void Compositor::describe(Output& output) {
    if (m_descriptions == nullptr)
        return;
    output.description = zxdg_output_manager_v1_get_xdg_output(m_descriptions, output.object);
    zxdg_output_v1_add_listener(output.description, &descriptionListener, &output);
}

void Compositor::remove(std::uint32_t name) {
    std::erase_if(m_outputs, [name](const Output& output) {
        if (output.globalName != name)
            return false;
        if (output.description != nullptr)
            zxdg_output_v1_destroy(output.description);
        wl_output_release(output.object);
        return true;
    });
}

wl_seat* Compositor::bindSeat() const {
    return bind<wl_seat>(m_registry, m_seatName, wl_seat_interface, 1);
}

void Compositor::synchronize() {
    if (wl_display_roundtrip(display) < 0)
        throw std::runtime_error("the compositor has ended");
}

bool Compositor::handleEvents() {
    return wl_display_dispatch(display) >= 0;
}

void Compositor::handleEventsFor(std::chrono::milliseconds period) {
    using Clock = std::chrono::steady_clock;
    const auto end = Clock::now() + period;
    for (auto now = Clock::now(); now < end; now = Clock::now()) {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(end - now);
        pollfd connection{wl_display_get_fd(display), POLLIN, 0};
        wl_display_flush(display);
        if (poll(&connection, 1, static_cast<int>(left.count())) > 0 && !handleEvents())
            throw std::runtime_error("the compositor has ended");
    }
}

const Output& Compositor::output(std::string_view name) const {
    const auto found = std::ranges::find(m_outputs, name, &Output::name);
    if (found == m_outputs.end())
        throw std::runtime_error("there is no output " + std::string(name));
    return *found;
}

Rectangle Compositor::desktop() const {
    if (m_outputs.empty())
        throw std::runtime_error("there is no output");
    Rectangle around = m_outputs.front().rectangle;
    for (const auto& [globalName, object, description, name, next] : m_outputs) {
        const int right = std::max(around.left + around.width, next.left + next.width);
        const int bottom = std::max(around.top + around.height, next.top + next.height);
        around.left = std::min(around.left, next.left);
        around.top = std::min(around.top, next.top);
        around.width = right - around.left;
        around.height = bottom - around.top;
    }
    return around;
}

} // namespace orvelle::wayland_client
