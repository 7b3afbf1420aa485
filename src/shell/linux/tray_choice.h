#pragma once

#include "shell/desktop.h"

#include <optional>

/// The tray, and what shows the windows of its items.
namespace orvelle {

/// Whether a tray that is not there yet is waited for: it may come later while the user logs in.
enum class TrayPatience { none, waits };

/// Why no items can be shown in a tray: there is none, or nothing that shows windows; nothing when there are
/// both. May be asked before the application object exists.
[[nodiscard]] std::optional<QString> trayDesktopAbsence(TrayPatience patience);

/// Looks for the best display that the tray's windows can be shown on, has Qt use it, and returns what makes
/// the desktop once the application object exists: a Wayland compositor with a layer shell, an X server, or a
/// compositor that places the windows itself.
[[nodiscard]] std::function<std::unique_ptr<Desktop>(SettingsStore&)> chooseTray();

} // namespace orvelle
