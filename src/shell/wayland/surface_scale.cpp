#include "shell/wayland/surface_scale.h"

#include "shell/wayland/event_handlers.h"

#include <cmath>
#include <fractional-scale-v1-client-protocol.h>
#include <utility>
#include <viewporter-client-protocol.h>
#include <wayland-client.h>

namespace orvelle {
namespace {

/// The protocol counts in these parts of a pixel.
constexpr double partsPerPixel = 120;
constexpr double smallestScale = 0.25;
constexpr double largestFraction = 16;

} // namespace

const wp_fractional_scale_v1_listener SurfaceScale::listener = [] {
    wp_fractional_scale_v1_listener events{};
    events.preferred_scale = onEvent<&SurfaceScale::handlePreferredScale>;
    return events;
}();

SurfaceScale::SurfaceScale(const WaylandGlobals& globals, wl_surface* surface, const WaylandOutput& output)
    : m_surface(surface)
    , m_output(output) {
    if (globals.viewporter() != nullptr)
        m_viewport.reset(wp_viewporter_get_viewport(globals.viewporter(), surface));
    if (m_viewport && globals.fractionalScales() != nullptr) {
        m_preferred.reset(
            wp_fractional_scale_manager_v1_get_fractional_scale(globals.fractionalScales(), surface));
        wp_fractional_scale_v1_add_listener(m_preferred.get(), &listener, this);
    }
    connect(&output, &WaylandOutput::changed, this, &SurfaceScale::followOutput);
    followOutput();
}

void SurfaceScale::followOutput() {
    if (m_hasPreferred)
        return;
    if (m_viewport)
        set(m_output.pixelsPerPoint());
    else
        set(wl_surface_get_version(m_surface) >= WL_SURFACE_SET_BUFFER_SCALE_SINCE_VERSION ? m_output.scale()
                                                                                           : 1);
}

void SurfaceScale::handlePreferredScale(std::uint32_t scale) {
    const double pixelsPerPoint = scale / partsPerPixel;
    if (pixelsPerPoint < smallestScale || pixelsPerPoint > largestFraction)
        return;
    m_hasPreferred = true;
    set(pixelsPerPoint);
}

void SurfaceScale::set(double pixelsPerPoint) {
    if (std::exchange(m_pixelsPerPoint, pixelsPerPoint) != pixelsPerPoint)
        Q_EMIT changed();
}

QSize SurfaceScale::pixelSize(const QSize& points) const {
    return {static_cast<int>(std::lround(points.width() * m_pixelsPerPoint)),
            static_cast<int>(std::lround(points.height() * m_pixelsPerPoint))};
}

void SurfaceScale::apply(const QSize& points) const {
    if (m_viewport)
        wp_viewport_set_destination(m_viewport.get(), points.width(), points.height());
    else if (wl_surface_get_version(m_surface) >= WL_SURFACE_SET_BUFFER_SCALE_SINCE_VERSION)
        wl_surface_set_buffer_scale(m_surface, static_cast<int>(m_pixelsPerPoint));
}

} // namespace orvelle
