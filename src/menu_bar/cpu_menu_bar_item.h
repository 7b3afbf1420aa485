#pragma once

#include "menu_bar/item_scene.h"

namespace orvelle {

class CPUMonitor;
class SettingsStore;
class ThemeManager;

/// The CPU module's place in the menu bar: total usage, a bar or a dot for each core, or the usage history.
/// What it refers to must outlive it.
class CPUMenuBarItem {
public:
    CPUMenuBarItem(const CPUMonitor& monitor, const SettingsStore& settings, const ThemeManager& themes);

    /// The present values in the style that the user chose.
    [[nodiscard]] ItemScene body() const;

private:
    [[nodiscard]] SceneNode picture() const;
    [[nodiscard]] QString accessibleText() const;
    [[nodiscard]] SceneNode coreBars(const QColor& color) const;
    [[nodiscard]] SceneNode coreDots(const QColor& color) const;

    const CPUMonitor& m_monitor;
    const SettingsStore& m_settings;
    const ThemeManager& m_themes;
};

} // namespace orvelle
