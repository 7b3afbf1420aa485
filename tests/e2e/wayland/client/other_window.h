#pragma once

#include "client/compositor.h"

namespace orvelle::wayland_client {

/// Shows an ordinary window of one colour, 400 x 300 points unless the compositor wants another size, until
/// the compositor ends or closes it. Its program has the name "other", or another one by which the
/// compositor's settings may know it. Reports on the standard output, one per line: "shown WIDTHxHEIGHT" for
/// each new size, "keyboard" and "no keyboard", "pressed" for each press of a mouse button, and "key NAME".
void showOtherWindow(Compositor& compositor, const char* programName = "other");

} // namespace orvelle::wayland_client
