#pragma once

#include "client/compositor.h"

#include <iosfwd>

namespace orvelle::wayland_client {

/// Is a mouse and a keyboard until the input ends. Answers each line of the input with a line: "done" when
/// the compositor has handled the command, or "failed: " and a reason.
///
///   move X Y                                   the place is in points of the desktop
///   press BUTTON, release BUTTON               where the mouse is
///   click BUTTON X Y [COUNT [PER_SECOND]]
///   wheel POINTS X Y                           a positive number scrolls down
///   key NAME...                                such as Escape shift+F10 ctrl+q
void obeySeatCommands(Compositor& compositor, std::istream& input, std::ostream& output);

} // namespace orvelle::wayland_client
