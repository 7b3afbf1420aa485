#include "shell/wayland/proxy_pointer.h"

#include <fractional-scale-v1-client-protocol.h>
#include <viewporter-client-protocol.h>
#include <wayland-client.h>
#include <wayland-cursor.h>
#include <wlr-layer-shell-unstable-v1-client-protocol.h>
#include <xdg-output-unstable-v1-client-protocol.h>

namespace orvelle {

void EndProxy::operator()(wl_buffer* buffer) const {
    wl_buffer_destroy(buffer);
}

void EndProxy::operator()(wl_compositor* compositor) const {
    wl_compositor_destroy(compositor);
}

void EndProxy::operator()(wl_cursor_theme* theme) const {
    wl_cursor_theme_destroy(theme);
}

void EndProxy::operator()(wl_output* output) const {
    if (wl_output_get_version(output) >= WL_OUTPUT_RELEASE_SINCE_VERSION)
        wl_output_release(output);
    else
        wl_output_destroy(output);
}

void EndProxy::operator()(wl_pointer* pointer) const {
    if (wl_pointer_get_version(pointer) >= WL_POINTER_RELEASE_SINCE_VERSION)
        wl_pointer_release(pointer);
    else
        wl_pointer_destroy(pointer);
}

void EndProxy::operator()(wl_registry* registry) const {
    wl_registry_destroy(registry);
}

void EndProxy::operator()(wl_seat* seat) const {
    if (wl_seat_get_version(seat) >= WL_SEAT_RELEASE_SINCE_VERSION)
        wl_seat_release(seat);
    else
        wl_seat_destroy(seat);
}

void EndProxy::operator()(wl_shm* shm) const {
    wl_shm_destroy(shm);
}

void EndProxy::operator()(wl_shm_pool* pool) const {
    wl_shm_pool_destroy(pool);
}

void EndProxy::operator()(wl_surface* surface) const {
    wl_surface_destroy(surface);
}

void EndProxy::operator()(wl_touch* touch) const {
    if (wl_touch_get_version(touch) >= WL_TOUCH_RELEASE_SINCE_VERSION)
        wl_touch_release(touch);
    else
        wl_touch_destroy(touch);
}

void EndProxy::operator()(wp_fractional_scale_manager_v1* manager) const {
    wp_fractional_scale_manager_v1_destroy(manager);
}

void EndProxy::operator()(wp_fractional_scale_v1* scale) const {
    wp_fractional_scale_v1_destroy(scale);
}

void EndProxy::operator()(wp_viewport* viewport) const {
    wp_viewport_destroy(viewport);
}

void EndProxy::operator()(wp_viewporter* viewporter) const {
    wp_viewporter_destroy(viewporter);
}

void EndProxy::operator()(zwlr_layer_shell_v1* shell) const {
    if (zwlr_layer_shell_v1_get_version(shell) >= ZWLR_LAYER_SHELL_V1_DESTROY_SINCE_VERSION)
        zwlr_layer_shell_v1_destroy(shell);
    else
        wl_proxy_destroy(reinterpret_cast<wl_proxy*>(shell));
}

void EndProxy::operator()(zwlr_layer_surface_v1* surface) const {
    zwlr_layer_surface_v1_destroy(surface);
}

void EndProxy::operator()(zxdg_output_manager_v1* manager) const {
    zxdg_output_manager_v1_destroy(manager);
}

void EndProxy::operator()(zxdg_output_v1* output) const {
    zxdg_output_v1_destroy(output);
}

} // namespace orvelle
