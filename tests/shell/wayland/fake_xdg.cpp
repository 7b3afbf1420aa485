#include "shell/wayland/fake_protocol.h"
#include "shell/wayland/fake_resources.h"

#include <xdg-output-unstable-v1-server-protocol.h>
#include <xdg-shell-server-protocol.h>

namespace orvelle {
namespace {

const struct zxdg_output_v1_interface xdgOutputFunctions{destroyResource};

const struct zxdg_output_manager_v1_interface xdgOutputsFunctions = [] {
    struct zxdg_output_manager_v1_interface functions{};
    functions.destroy = destroyResource;
    functions.get_xdg_output = [](wl_client* client, wl_resource* resource, std::uint32_t id,
                                  wl_resource* wlOutput) {
        FakeOutput* output = compositorOf(resource).outputOf(wlOutput);
        wl_resource* size = makeResource(
            client, resource, zxdg_output_v1_interface, id, &xdgOutputFunctions, output,
            [](wl_resource* ended) {
                std::erase(static_cast<FakeOutput*>(wl_resource_get_user_data(ended))->sizeResources, ended);
            });
        output->sizeResources.push_back(size);
        describeSize(size, *output);
        if (wl_resource_get_version(wlOutput) >= WL_OUTPUT_DONE_SINCE_VERSION)
            wl_output_send_done(wlOutput);
    };
    return functions;
}();

/// From 6.5 on Qt does not start where it finds no shell for ordinary windows. The windows of the tests are
/// none.
void refuseOrdinaryWindow(wl_resource* shell) {
    wl_resource_post_error(shell, XDG_WM_BASE_ERROR_ROLE, "there are only windows in layers");
}

const struct xdg_wm_base_interface xdgShellFunctions = [] {
    struct xdg_wm_base_interface functions{};
    functions.destroy = destroyResource;
    functions.create_positioner = [](wl_client*, wl_resource* resource, std::uint32_t) {
        refuseOrdinaryWindow(resource);
    };
    functions.get_xdg_surface = [](wl_client*, wl_resource* resource, std::uint32_t, wl_resource*) {
        refuseOrdinaryWindow(resource);
    };
    functions.pong = [](wl_client*, wl_resource*, std::uint32_t) {};
    return functions;
}();

} // namespace

void describeSize(wl_resource* resource, const FakeOutput& output) {
    zxdg_output_v1_send_logical_position(resource, 0, 0);
    zxdg_output_v1_send_logical_size(resource, output.size.width(), output.size.height());
    if (wl_resource_get_version(resource) < 3)
        zxdg_output_v1_send_done(resource);
}

void offerXdgOutput(FakeCompositor& compositor, std::uint32_t version) {
    offer<zxdg_output_manager_v1_interface, xdgOutputsFunctions>(compositor, version);
}

void offerXdgShell(FakeCompositor& compositor, std::uint32_t version) {
    offer<xdg_wm_base_interface, xdgShellFunctions>(compositor, version);
}

} // namespace orvelle
