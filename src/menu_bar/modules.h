#pragma once

#include "menu_bar/item_scene.h"

#include <QLatin1StringView>

#include <span>
#include <string>

namespace orvelle {

class SettingsStore;
class SystemMonitor;
class ThemeManager;

/// What the views of every module are built from.
struct ModuleContext {
    SystemMonitor& monitor;
    const SettingsStore& settings;
    const ThemeManager& themes;
};

/// One thing that the program can show in the menu bar.
struct Module {
    QLatin1StringView key;
    double length; ///< width of its status item in points
    bool (SettingsStore::*isShown)() const;
    /// What its status item shows at the present values.
    ItemScene (*makeScene)(const ModuleContext&);
    /// The values of the last update cycle in one line.
    std::string (*describeSample)(SystemMonitor&);
};

/// Every module, in the order in which their items stand from left to right.
[[nodiscard]] std::span<const Module> modules();

} // namespace orvelle
