#include "shell/wayland/press_catcher.h"

#include "shell/wayland/event_handlers.h"
#include "shell/wayland/input_target.h"
#include "shell/wayland/shm_buffer.h"

#include <algorithm>
#include <viewporter-client-protocol.h>
#include <wayland-client.h>
#include <wlr-layer-shell-unstable-v1-client-protocol.h>

namespace orvelle {
namespace {

/// As the strip's: KWin then leaves the keyboard where it is.
constexpr const char* catcherName = "dock";
constexpr std::uint32_t allEdges = ZWLR_LAYER_SURFACE_V1_ANCHOR_TOP | ZWLR_LAYER_SURFACE_V1_ANCHOR_BOTTOM |
                                   ZWLR_LAYER_SURFACE_V1_ANCHOR_LEFT | ZWLR_LAYER_SURFACE_V1_ANCHOR_RIGHT;
constexpr int besidePanels = 0; // exclusive zones
constexpr int acrossPanels = -1;

} // namespace

/// One transparent pixel, scaled over a screen.
class CatcherSurface {
public:
    /// What panels have reserved is left out where the strip is.
    CatcherSurface(const WaylandGlobals& globals, const WaylandOutput& output, bool hasStrip);

    [[nodiscard]] const WaylandOutput& output() const { return m_output; }
    [[nodiscard]] InputTarget& input() { return m_input; }

private:
    static const zwlr_layer_surface_v1_listener listener;
    void handleConfigure(std::uint32_t serial, std::uint32_t width, std::uint32_t height);

    const WaylandOutput& m_output;
    ProxyPointer<wl_surface> m_surface;
    ProxyPointer<wp_viewport> m_viewport;
    InputTarget m_input;
    std::unique_ptr<ShmBuffer> m_pixel; ///< null when the system has no memory
    ProxyPointer<zwlr_layer_surface_v1> m_layerSurface;
};

// A surface that the compositor has closed stays, so that the screen is not covered again.
const zwlr_layer_surface_v1_listener CatcherSurface::listener = [] {
    zwlr_layer_surface_v1_listener events{};
    events.configure = onEvent<&CatcherSurface::handleConfigure>;
    events.closed = ignoredEvent;
    return events;
}();

CatcherSurface::CatcherSurface(const WaylandGlobals& globals, const WaylandOutput& output, bool hasStrip)
    : m_output(output)
    , m_surface(wl_compositor_create_surface(globals.compositor()))
    , m_viewport(wp_viewporter_get_viewport(globals.viewporter(), m_surface.get()))
    , m_input(m_surface.get())
    , m_pixel(ShmBuffer::make(globals.shm(), QSize(1, 1), true))
    , m_layerSurface(zwlr_layer_shell_v1_get_layer_surface(
          globals.layerShell(), m_surface.get(), output.handle(),
          hasStrip ? ZWLR_LAYER_SHELL_V1_LAYER_TOP : ZWLR_LAYER_SHELL_V1_LAYER_OVERLAY, catcherName)) {
    zwlr_layer_surface_v1_add_listener(m_layerSurface.get(), &listener, this);
    zwlr_layer_surface_v1_set_size(m_layerSurface.get(), 0, 0);
    zwlr_layer_surface_v1_set_anchor(m_layerSurface.get(), allEdges);
    zwlr_layer_surface_v1_set_exclusive_zone(m_layerSurface.get(), hasStrip ? besidePanels : acrossPanels);
    wl_surface_commit(m_surface.get()); // without a picture: asks for the size
}

void CatcherSurface::handleConfigure(std::uint32_t serial, std::uint32_t width, std::uint32_t height) {
    zwlr_layer_surface_v1_ack_configure(m_layerSurface.get(), serial);
    const auto columns = static_cast<std::int32_t>(width);
    const auto rows = static_cast<std::int32_t>(height);
    if (columns <= 0 || rows <= 0 || !m_pixel)
        return; // the real size follows
    wp_viewport_set_destination(m_viewport.get(), columns, rows);
    wl_surface_attach(m_surface.get(), m_pixel->handle(), 0, 0);
    wl_surface_damage(m_surface.get(), 0, 0, columns, rows);
    wl_surface_commit(m_surface.get());
}

PressCatcher::PressCatcher(const WaylandGlobals& globals, const WaylandOutputs& outputs,
                           const WaylandOutput* stripOutput)
    : m_globals(globals)
    , m_outputs(outputs)
    , m_stripOutput(stripOutput) {
    connect(&outputs, &WaylandOutputs::changed, this, &PressCatcher::cover);
    connect(&outputs, &WaylandOutputs::removed, this, &PressCatcher::uncover);
    cover();
}

PressCatcher::~PressCatcher() = default;

void PressCatcher::cover() {
    if (!m_globals.canShowStrip() || m_globals.viewporter() == nullptr)
        return;
    for (const WaylandOutput* output : m_outputs.known()) {
        const bool isCovered = std::ranges::any_of(
            m_surfaces, [output](const auto& surface) { return &surface->output() == output; });
        if (isCovered)
            continue;
        m_surfaces.push_back(std::make_unique<CatcherSurface>(m_globals, *output, output == m_stripOutput));
        connect(&m_surfaces.back()->input(), &InputTarget::pressed, this, &PressCatcher::pressed);
    }
}

void PressCatcher::uncover(const WaylandOutput& output) {
    std::erase_if(m_surfaces, [&output](const auto& surface) { return &surface->output() == &output; });
}

} // namespace orvelle
