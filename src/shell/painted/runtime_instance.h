#pragma once

#include "shell/desktop.h"

#include <QString>

#include <memory>

/// The single instance of the program on desktops that have no means of their own to find another one.
namespace orvelle {

/// The file that stands for the desktop with this name in `$XDG_RUNTIME_DIR`. The name may be a path, as that
/// of a Wayland display may. Empty when the variable is not an absolute path.
[[nodiscard]] QString instanceFile(const QString& desktopName);

/// Makes this process the only one that holds the file, until the result is destroyed or the process ends in
/// any way. Null when another process holds it, which is then given the request. A file that cannot be used
/// does not keep the program from running: other processes are not found then.
[[nodiscard]] std::unique_ptr<SingleInstance> becomeSingleInstanceWith(const QString& file,
                                                                       const StartRequest& request = {});

/// Whether a process holds the file.
[[nodiscard]] bool isInstanceFileHeld(const QString& file);

} // namespace orvelle
