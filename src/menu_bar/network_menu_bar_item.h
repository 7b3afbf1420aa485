#pragma once

#include "menu_bar/item_scene.h"

namespace orvelle {

class NetworkMonitor;
class SettingsStore;
class ThemeManager;

/// The network module's place in the menu bar: the upload rate above the download rate, their histories, or a
/// dot for each direction. What it refers to must outlive it.
class NetworkMenuBarItem {
public:
    NetworkMenuBarItem(const NetworkMonitor& monitor, const SettingsStore& settings,
                       const ThemeManager& themes);

    /// The present values in the style that the user chose.
    [[nodiscard]] ItemScene body() const;

private:
    [[nodiscard]] SceneNode picture() const;
    [[nodiscard]] QString accessibleText() const;
    /// Both rates as bare text.
    [[nodiscard]] SceneNode rates() const;
    /// Both rates, each behind an arrow in the colour of its direction.
    [[nodiscard]] SceneNode ratePair() const;
    [[nodiscard]] SceneNode history(double width) const;
    [[nodiscard]] SceneNode activityDots() const;

    const NetworkMonitor& m_monitor;
    const SettingsStore& m_settings;
    const ThemeManager& m_themes;
};

} // namespace orvelle
