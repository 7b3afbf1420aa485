#include "shell/wayland/layer_shell.h"

#include "shell/wayland/qt_connection.h"

#include <QDeadlineTimer>

#include <algorithm>
#include <poll.h>
#include <string_view>
#include <wayland-client.h>
#include <wlr-layer-shell-unstable-v1-client-protocol.h>

namespace orvelle {

struct LayerShellRegistry {
    static void announced(void* data, wl_registry* registry, std::uint32_t name, const char* interface,
                          std::uint32_t version) {
        if (std::string_view(interface) == zwlr_layer_shell_v1_interface.name)
            static_cast<LayerShell*>(data)->bind(*registry, name, version);
    }
    static void removed(void* /*data*/, wl_registry* /*registry*/, std::uint32_t /*name*/) {}
    static constexpr wl_registry_listener listener{announced, removed};
};

std::unique_ptr<LayerShell> LayerShell::connect() {
    wl_display* display = qtDisplay();
    if (display == nullptr)
        return nullptr;
    auto shell = std::unique_ptr<LayerShell>(new LayerShell(*display));
    return shell->m_shell == nullptr ? nullptr : std::move(shell);
}

LayerShell::LayerShell(wl_display& display)
    : m_display(display)
    , m_queue(wl_display_create_queue(&display)) {
    auto* wrapper = static_cast<wl_display*>(wl_proxy_create_wrapper(&display));
    wl_proxy_set_queue(reinterpret_cast<wl_proxy*>(wrapper), m_queue);
    m_registry = wl_display_get_registry(wrapper);
    wl_proxy_wrapper_destroy(wrapper);
    wl_registry_add_listener(m_registry, &LayerShellRegistry::listener, this);
    wl_display_roundtrip_queue(&m_display, m_queue);
}

LayerShell::~LayerShell() {
    if (m_shell != nullptr && m_version >= ZWLR_LAYER_SHELL_V1_DESTROY_SINCE_VERSION)
        zwlr_layer_shell_v1_destroy(m_shell);
    else if (m_shell != nullptr)
        wl_proxy_destroy(reinterpret_cast<wl_proxy*>(m_shell));
    wl_registry_destroy(m_registry);
    wl_event_queue_destroy(m_queue);
}

void LayerShell::bind(wl_registry& registry, std::uint32_t name, std::uint32_t version) {
    constexpr std::uint32_t knownVersion = 4;
    if (m_shell != nullptr)
        return;
    m_version = std::min(version, knownVersion);
    m_shell = static_cast<zwlr_layer_shell_v1*>(
        wl_registry_bind(&registry, name, &zwlr_layer_shell_v1_interface, m_version));
}

zwlr_layer_surface_v1* LayerShell::makeOverlay(wl_surface& surface, wl_output* output) const {
    return zwlr_layer_shell_v1_get_layer_surface(m_shell, &surface, output, ZWLR_LAYER_SHELL_V1_LAYER_OVERLAY,
                                                 "orvelle");
}

bool LayerShell::waitUntil(const std::function<bool()>& holds, std::chrono::milliseconds patience) {
    const QDeadlineTimer deadline(patience);
    while (wl_display_dispatch_queue_pending(&m_display, m_queue) >= 0 && !holds()) {
        if (deadline.hasExpired())
            return false;
        readEvents(std::chrono::milliseconds(deadline.remainingTime()));
    }
    return holds();
}

/// Waits for events on the connection. A thread of Qt may read them first.
void LayerShell::readEvents(std::chrono::milliseconds patience) {
    if (wl_display_prepare_read_queue(&m_display, m_queue) != 0)
        return; // there are events already
    wl_display_flush(&m_display);
    pollfd connection{wl_display_get_fd(&m_display), POLLIN, 0};
    if (::poll(&connection, 1, static_cast<int>(patience.count())) > 0)
        wl_display_read_events(&m_display);
    else
        wl_display_cancel_read(&m_display);
}

void LayerShell::handToQt(zwlr_layer_surface_v1& surface) {
    wl_proxy_set_queue(reinterpret_cast<wl_proxy*>(&surface), nullptr);
    // Those that came before this.
    wl_display_dispatch_queue_pending(&m_display, m_queue);
}

} // namespace orvelle
