#pragma once

#include "menu_bar/icon_scene.h"
#include "menu_bar/item_scene.h"
#include "settings/module_table.h"

namespace orvelle {

class SettingsStore;
class SystemMonitor;
class ThemeManager;

/// The objects that the items of all modules need.
struct ModuleContext {
    SystemMonitor& monitor;
    const SettingsStore& settings;
    const ThemeManager& themes;
};

/// The module's status item at the current values. A module of the table without a matching monitor or item
/// does not compile.
[[nodiscard]] ItemScene makeScene(ModuleId module, const ModuleContext& context);

/// The module's status item as a square, at the current values.
[[nodiscard]] IconScene makeIcon(ModuleId module, const ModuleContext& context);

} // namespace orvelle
