#pragma once

#include "menu_bar/item_scene.h"

namespace orvelle {

class MemoryMonitor;
class SettingsStore;
class ThemeManager;

/// The memory module's place in the menu bar: the used share as text, bar or dots, or the pressure history.
/// What it refers to must outlive it.
class MemoryMenuBarItem {
public:
    MemoryMenuBarItem(const MemoryMonitor& monitor, const SettingsStore& settings,
                      const ThemeManager& themes);

    /// The present values in the style that the user chose.
    [[nodiscard]] ItemScene body() const;

private:
    [[nodiscard]] SceneNode picture() const;
    [[nodiscard]] QString accessibleText() const;

    const MemoryMonitor& m_monitor;
    const SettingsStore& m_settings;
    const ThemeManager& m_themes;
};

} // namespace orvelle
