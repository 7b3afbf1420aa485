#pragma once

#include "shell/wayland/fake_compositor.h"

#include <wayland-server.h>

/// What the objects of the fake compositor's clients have in common. The data of globals is the compositor.
namespace orvelle {

inline FakeCompositor& compositorOf(wl_resource* resource) {
    return *static_cast<FakeCompositor*>(wl_resource_get_user_data(resource));
}

inline FakeSurface& surfaceOf(wl_resource* resource) {
    return *static_cast<FakeSurface*>(wl_resource_get_user_data(resource));
}

/// A global whose bindings have these functions, and the compositor as their data.
template <const wl_interface& interface, auto& functions>
void offer(FakeCompositor& compositor, std::uint32_t version) {
    if (version == 0)
        return;
    wl_global_create(compositor.display(), &interface, static_cast<int>(version), &compositor,
                     [](wl_client* client, void* data, std::uint32_t bound, std::uint32_t id) {
                         wl_resource* resource =
                             wl_resource_create(client, &interface, static_cast<int>(bound), id);
                         wl_resource_set_implementation(resource, &functions, data, nullptr);
                     });
}

inline wl_resource* makeResource(wl_client* client, wl_resource* parent, const wl_interface& interface,
                                 std::uint32_t id, const void* functions, void* data,
                                 wl_resource_destroy_func_t ended = nullptr) {
    wl_resource* resource = wl_resource_create(client, &interface, wl_resource_get_version(parent), id);
    wl_resource_set_implementation(resource, functions, data, ended);
    return resource;
}

} // namespace orvelle
