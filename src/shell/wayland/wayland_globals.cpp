#include "shell/wayland/wayland_globals.h"

#include "shell/wayland/event_handlers.h"

#include <algorithm>
#include <fractional-scale-v1-client-protocol.h>
#include <viewporter-client-protocol.h>
#include <wayland-client.h>
#include <wlr-layer-shell-unstable-v1-client-protocol.h>
#include <xdg-output-unstable-v1-client-protocol.h>

namespace orvelle {

const wl_registry_listener WaylandGlobals::listener = [] {
    wl_registry_listener events{};
    events.global = onEvent<&WaylandGlobals::handleGlobal>;
    events.global_remove = onEvent<&WaylandGlobals::handleRemoval>;
    return events;
}();

WaylandGlobals::WaylandGlobals(wl_display* display)
    : m_registry(wl_display_get_registry(display)) {
    wl_registry_add_listener(m_registry.get(), &listener, this);
}

void* WaylandGlobals::bindObject(const WaylandGlobal& global, const wl_interface& interface,
                                 std::uint32_t version) const {
    return wl_registry_bind(m_registry.get(), global.name, &interface, std::min(global.version, version));
}

template <class Object>
void WaylandGlobals::take(ProxyPointer<Object>& object, const WaylandGlobal& global,
                          const wl_interface& interface, std::uint32_t version) {
    if (object || global.interface != interface.name)
        return;
    object = bind<Object>(global, interface, version);
    Q_EMIT changed();
}

void WaylandGlobals::handleGlobal(std::uint32_t name, const char* interface, std::uint32_t version) {
    const WaylandGlobal global{name, interface, version};
    take(m_compositor, global, wl_compositor_interface, WL_SURFACE_DAMAGE_BUFFER_SINCE_VERSION);
    take(m_shm, global, wl_shm_interface, 1);
    take(m_layerShell, global, zwlr_layer_shell_v1_interface, 4);
    take(m_viewporter, global, wp_viewporter_interface, 1);
    take(m_fractionalScales, global, wp_fractional_scale_manager_v1_interface, 1);
    take(m_screenSizes, global, zxdg_output_manager_v1_interface, 3);
    Q_EMIT announced(global);
}

} // namespace orvelle
