#include "shell/wayland/fake_protocol.h"

#include "shell/wayland/fake_resources.h"

#include <fractional-scale-v1-server-protocol.h>
#include <viewporter-server-protocol.h>
#include <wayland-server.h>
#include <wlr-layer-shell-unstable-v1-server-protocol.h>

namespace orvelle {
namespace {

const struct wl_region_interface regionFunctions = [] {
    struct wl_region_interface functions{};
    functions.destroy = destroyResource;
    functions.add = [](wl_client*, wl_resource*, int, int, int, int) {};
    functions.subtract = [](wl_client*, wl_resource*, int, int, int, int) {};
    return functions;
}();

const struct wl_surface_interface surfaceFunctions = [] {
    struct wl_surface_interface functions{};
    functions.destroy = destroyResource;
    functions.attach = [](wl_client*, wl_resource* resource, wl_resource* buffer, int, int) {
        surfaceOf(resource).pendingBuffer = buffer;
    };
    functions.damage = [](wl_client*, wl_resource* resource, int x, int y, int width, int height) {
        surfaceOf(resource).pendingDamage += QRect(x, y, width, height);
        surfaceOf(resource).isDamageInPixels = false;
    };
    functions.damage_buffer = [](wl_client*, wl_resource* resource, int x, int y, int width, int height) {
        surfaceOf(resource).pendingDamage += QRect(x, y, width, height);
        surfaceOf(resource).isDamageInPixels = true;
    };
    functions.frame = [](wl_client*, wl_resource* resource, std::uint32_t) {
        ++surfaceOf(resource).frameCallbacks;
    };
    functions.set_opaque_region = [](wl_client*, wl_resource*, wl_resource*) {};
    functions.set_input_region = [](wl_client*, wl_resource*, wl_resource*) {};
    functions.set_buffer_transform = [](wl_client*, wl_resource*, int) {};
    functions.set_buffer_scale = [](wl_client*, wl_resource* resource, int scale) {
        surfaceOf(resource).bufferScale = scale;
    };
    functions.commit = [](wl_client*, wl_resource* resource) {
        surfaceOf(resource).compositor->commit(surfaceOf(resource));
    };
    functions.offset = [](wl_client*, wl_resource*, int, int) {};
    return functions;
}();

const struct wl_compositor_interface compositorFunctions = [] {
    struct wl_compositor_interface functions{};
    functions.create_surface = [](wl_client* client, wl_resource* resource, std::uint32_t id) {
        auto surface = std::make_unique<FakeSurface>();
        surface->resource =
            makeResource(client, resource, wl_surface_interface, id, &surfaceFunctions, surface.get(),
                         [](wl_resource* ended) { surfaceOf(ended).compositor->remove(surfaceOf(ended)); });
        surface->compositor = &compositorOf(resource);
        compositorOf(resource).add(std::move(surface));
    };
    functions.create_region = [](wl_client* client, wl_resource* resource, std::uint32_t id) {
        makeResource(client, resource, wl_region_interface, id, &regionFunctions, nullptr);
    };
    return functions;
}();

const struct zwlr_layer_surface_v1_interface layerSurfaceFunctions = [] {
    struct zwlr_layer_surface_v1_interface functions{};
    functions.set_size = [](wl_client*, wl_resource* resource, std::uint32_t width, std::uint32_t height) {
        surfaceOf(resource).requestedSize = QSize(static_cast<int>(width), static_cast<int>(height));
    };
    functions.set_anchor = [](wl_client*, wl_resource* resource, std::uint32_t anchor) {
        surfaceOf(resource).anchor = anchor;
    };
    functions.set_exclusive_zone = [](wl_client*, wl_resource* resource, std::int32_t zone) {
        surfaceOf(resource).exclusiveZone = zone;
    };
    functions.set_margin = [](wl_client*, wl_resource* resource, int top, int right, int bottom, int left) {
        surfaceOf(resource).margins = QMargins(left, top, right, bottom);
    };
    functions.set_keyboard_interactivity = [](wl_client*, wl_resource* resource, std::uint32_t keyboard) {
        surfaceOf(resource).keyboard = keyboard;
    };
    functions.get_popup = [](wl_client*, wl_resource*, wl_resource*) {};
    functions.ack_configure = [](wl_client*, wl_resource* resource, std::uint32_t serial) {
        surfaceOf(resource).acknowledged = serial;
    };
    functions.destroy = destroyResource;
    functions.set_layer = [](wl_client*, wl_resource* resource, std::uint32_t layer) {
        surfaceOf(resource).layer = layer;
    };
    return functions;
}();

const struct zwlr_layer_shell_v1_interface layerShellFunctions = [] {
    struct zwlr_layer_shell_v1_interface functions{};
    functions.get_layer_surface = [](wl_client* client, wl_resource* resource, std::uint32_t id,
                                     wl_resource* wlSurface, wl_resource* output, std::uint32_t layer,
                                     const char* name) {
        FakeSurface& surface = surfaceOf(wlSurface);
        FakeCompositor& compositor = compositorOf(resource);
        surface.layerResource = makeResource(
            client, resource, zwlr_layer_surface_v1_interface, id, &layerSurfaceFunctions, &surface,
            [](wl_resource* ended) { surfaceOf(ended).compositor->endRole(surfaceOf(ended)); });
        surface.output = compositor.outputOf(output);
        surface.layer = layer;
        surface.name = QString::fromUtf8(name);
        ++compositor.layerSurfaceCount;
    };
    functions.destroy = destroyResource;
    return functions;
}();

const struct wp_viewport_interface viewportFunctions = [] {
    struct wp_viewport_interface functions{};
    functions.destroy = destroyResource;
    functions.set_source = [](wl_client*, wl_resource*, wl_fixed_t, wl_fixed_t, wl_fixed_t, wl_fixed_t) {};
    functions.set_destination = [](wl_client*, wl_resource* resource, int width, int height) {
        surfaceOf(resource).destination = QSize(width, height);
    };
    return functions;
}();

const struct wp_viewporter_interface viewporterFunctions = [] {
    struct wp_viewporter_interface functions{};
    functions.destroy = destroyResource;
    functions.get_viewport = [](wl_client* client, wl_resource* resource, std::uint32_t id,
                                wl_resource* surface) {
        makeResource(client, resource, wp_viewport_interface, id, &viewportFunctions, &surfaceOf(surface));
    };
    return functions;
}();

const struct wp_fractional_scale_v1_interface scaleFunctions{destroyResource};

const struct wp_fractional_scale_manager_v1_interface scalesFunctions = [] {
    struct wp_fractional_scale_manager_v1_interface functions{};
    functions.destroy = destroyResource;
    functions.get_fractional_scale = [](wl_client* client, wl_resource* resource, std::uint32_t id,
                                        wl_resource* wlSurface) {
        FakeSurface& surface = surfaceOf(wlSurface);
        surface.fractionalScale =
            makeResource(client, resource, wp_fractional_scale_v1_interface, id, &scaleFunctions, &surface,
                         [](wl_resource* ended) { surfaceOf(ended).fractionalScale = nullptr; });
        if (const std::uint32_t parts = compositorOf(resource).scaleParts)
            FakeCompositor::preferScale(surface, parts);
    };
    return functions;
}();

} // namespace

void destroyResource(wl_client* /*client*/, wl_resource* resource) {
    wl_resource_destroy(resource);
}

void offerCompositor(FakeCompositor& compositor, std::uint32_t version) {
    offer<wl_compositor_interface, compositorFunctions>(compositor, version);
}

void offerLayerShell(FakeCompositor& compositor, std::uint32_t version) {
    offer<zwlr_layer_shell_v1_interface, layerShellFunctions>(compositor, version);
}

void offerViewporter(FakeCompositor& compositor, std::uint32_t version) {
    offer<wp_viewporter_interface, viewporterFunctions>(compositor, version);
}

void offerFractionalScale(FakeCompositor& compositor, std::uint32_t version) {
    offer<wp_fractional_scale_manager_v1_interface, scalesFunctions>(compositor, version);
}

} // namespace orvelle
