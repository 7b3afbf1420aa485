#pragma once

#include <xcb/xcb.h>

#include <memory>

namespace orvelle {

/// Covers the bare desktop of a Wayland session with a transparent window, as long as the object exists. The
/// X server of such a session hears only presses on X windows, so without the cover a press on the desktop
/// would not close a panel. The window lies below all others, as the desktop does. A press on it does nothing
/// else. Main thread only.
class DesktopCover {
public:
    /// Null where presses on the desktop are heard without a cover, and where the window manager has no
    /// windows that lie below all others.
    [[nodiscard]] static std::unique_ptr<DesktopCover> makeIfNeeded();
    ~DesktopCover();
    DesktopCover(const DesktopCover&) = delete;
    DesktopCover& operator=(const DesktopCover&) = delete;

private:
    DesktopCover(xcb_connection_t* connection, xcb_visualid_t visual);

    xcb_connection_t* m_connection;
    xcb_colormap_t m_colors;
    xcb_window_t m_window;
};

} // namespace orvelle
