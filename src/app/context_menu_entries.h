#pragma once

#include "app/shell/context_menu.h"

namespace orvelle {

/// The menu that a right click on any item opens. Without `openSettings` there is only the way to end the
/// program.
[[nodiscard]] std::vector<MenuEntry> contextMenuEntries(std::function<void()> openSettings,
                                                        std::function<void()> quitApp);

} // namespace orvelle
