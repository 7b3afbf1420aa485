#pragma once

#include "shell/wayland/wayland_globals.h"

namespace orvelle {

/// Shows the plain arrow of the user's cursor theme over the surfaces of a connection. The theme is read when
/// a pointer first enters one of them. Main thread only.
class ArrowCursor {
public:
    explicit ArrowCursor(const WaylandGlobals& globals)
        : m_globals(globals) {}

    /// To be called when the pointer has entered a surface, with the serial number of that event. Without a
    /// theme the cursor stays as it is.
    void show(wl_pointer* pointer, std::uint32_t serial);
    /// Pixels of a point, for the next pointer that enters.
    void setScale(int scale) { m_scale = scale; }

private:
    [[nodiscard]] bool load();

    const WaylandGlobals& m_globals;
    ProxyPointer<wl_cursor_theme> m_theme; ///< null until it is needed
    ProxyPointer<wl_surface> m_surface;
    int m_scale = 1;
    int m_loadedScale = 0;
    int m_hotspotX = 0; ///< in points, as the next one
    int m_hotspotY = 0;
};

} // namespace orvelle
