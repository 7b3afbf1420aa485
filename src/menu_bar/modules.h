#pragma once

#include "menu_bar/item_scene.h"
#include "settings/module_table.h"

namespace orvelle {

class SettingsStore;
class SystemMonitor;
class ThemeManager;

/// What the items of all modules are made from.
struct ModuleContext {
    SystemMonitor& monitor;
    const SettingsStore& settings;
    const ThemeManager& themes;
};

/// What the module's status item shows at the present values. A module of the table that has no monitor or no
/// item of its name does not compile.
[[nodiscard]] ItemScene makeScene(ModuleId module, const ModuleContext& context);

} // namespace orvelle
