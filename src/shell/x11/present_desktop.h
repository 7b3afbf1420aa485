#pragma once

#include <xcb/xcb.h>

namespace orvelle {

/// Asks the window manager to take a shown window to the desktop that the user is on now. Nothing happens
/// where it knows no desktops.
void moveToPresentDesktop(xcb_connection_t* connection, xcb_window_t window);

} // namespace orvelle
