#pragma once

#include "menu_bar/item_scene.h"

namespace orvelle {

class SensorMonitor;
class SettingsStore;
class ThemeManager;

/// The sensor module's place in the menu bar: the CPU temperature as text or dots, or its history. What it
/// refers to must outlive it.
class SensorMenuBarItem {
public:
    SensorMenuBarItem(const SensorMonitor& monitor, const SettingsStore& settings,
                      const ThemeManager& themes);

    /// The present values in the style that the user chose.
    [[nodiscard]] ItemScene body() const;

private:
    [[nodiscard]] SceneNode picture() const;
    [[nodiscard]] QString accessibleText() const;

    const SensorMonitor& m_monitor;
    const SettingsStore& m_settings;
    const ThemeManager& m_themes;
};

} // namespace orvelle
