#pragma once

#include "shell/desktop.h"

namespace orvelle {

/// Makes this process the only one of the program on its X server. Null when another process is, which is
/// then given the request. Off X11 other processes cannot be found.
///
/// The server forgets the owner of a selection when that process ends in any way. Unlike a file, a selection
/// also distinguishes the desktops of one user.
[[nodiscard]] std::unique_ptr<SingleInstance> becomeSingleX11Instance(const StartRequest& request);

/// Whether another process is the only one of the program on its X server.
[[nodiscard]] bool isRunningElsewhereOnX11();

} // namespace orvelle
