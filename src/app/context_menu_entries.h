#pragma once

#include "shell/status_bar.h"

namespace orvelle {

/// The menu that a right click on any item opens.
[[nodiscard]] std::vector<MenuEntry> contextMenuEntries(std::function<void()> openSettings,
                                                        std::function<void()> quitApp);

} // namespace orvelle
