#pragma once

#include <memory>

struct wl_buffer;
struct wl_compositor;
struct wl_cursor_theme;
struct wl_output;
struct wl_pointer;
struct wl_registry;
struct wl_seat;
struct wl_shm;
struct wl_shm_pool;
struct wl_surface;
struct wl_touch;
struct wp_fractional_scale_manager_v1;
struct wp_fractional_scale_v1;
struct wp_viewport;
struct wp_viewporter;
struct zwlr_layer_shell_v1;
struct zwlr_layer_surface_v1;
struct zxdg_output_manager_v1;
struct zxdg_output_v1;

namespace orvelle {

/// Ends an object of a Wayland connection, and tells the compositor where its version can be told.
struct EndProxy {
    void operator()(wl_buffer* buffer) const;
    void operator()(wl_compositor* compositor) const;
    void operator()(wl_cursor_theme* theme) const;
    void operator()(wl_output* output) const;
    void operator()(wl_pointer* pointer) const;
    void operator()(wl_registry* registry) const;
    void operator()(wl_seat* seat) const;
    void operator()(wl_shm* shm) const;
    void operator()(wl_shm_pool* pool) const;
    void operator()(wl_surface* surface) const;
    void operator()(wl_touch* touch) const;
    void operator()(wp_fractional_scale_manager_v1* manager) const;
    void operator()(wp_fractional_scale_v1* scale) const;
    void operator()(wp_viewport* viewport) const;
    void operator()(wp_viewporter* viewporter) const;
    void operator()(zwlr_layer_shell_v1* shell) const;
    void operator()(zwlr_layer_surface_v1* surface) const;
    void operator()(zxdg_output_manager_v1* manager) const;
    void operator()(zxdg_output_v1* output) const;
};

/// Owns an object of a Wayland connection, which must outlive it.
template <class Object>
using ProxyPointer = std::unique_ptr<Object, EndProxy>;

} // namespace orvelle
