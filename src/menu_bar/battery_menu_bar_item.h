#pragma once

#include "menu_bar/item_scene.h"

namespace orvelle {

class BatteryMonitor;
class SettingsStore;
class ThemeManager;

/// The battery module's place in the menu bar: the charge as glyph, text, dots or history; on a machine
/// without a battery that it runs on external power. What it refers to must outlive it.
class BatteryMenuBarItem {
public:
    BatteryMenuBarItem(const BatteryMonitor& monitor, const SettingsStore& settings,
                       const ThemeManager& themes);

    /// The present values in the style that the user chose.
    [[nodiscard]] ItemScene body() const;

private:
    [[nodiscard]] SceneNode picture() const;
    [[nodiscard]] QString accessibleText() const;
    /// The charge with a bolt beside it while charging.
    [[nodiscard]] SceneNode charge(double fontSize) const;

    const BatteryMonitor& m_monitor;
    const SettingsStore& m_settings;
    const ThemeManager& m_themes;
};

} // namespace orvelle
