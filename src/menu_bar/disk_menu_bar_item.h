#pragma once

#include "menu_bar/item_scene.h"

#include <optional>

namespace orvelle {

class DiskMonitor;
class SettingsStore;
class ThemeManager;

/// The disk module's place in the menu bar: how full the first volume is, and whether the disks are being
/// read and written. What it refers to must outlive it.
class DiskMenuBarItem {
public:
    DiskMenuBarItem(const DiskMonitor& monitor, const SettingsStore& settings, const ThemeManager& themes);

    /// The present values in the style that the user chose.
    [[nodiscard]] ItemScene body() const;

private:
    [[nodiscard]] SceneNode picture() const;
    [[nodiscard]] QString accessibleText() const;
    /// The used share of the first volume; nothing while none is mounted.
    [[nodiscard]] std::optional<double> used() const;
    /// `parts` and, when a volume is mounted, how full the first one is.
    [[nodiscard]] SceneNode withUsedText(std::vector<SceneNode> parts) const;
    /// An arrow for each direction above the bar of the first volume.
    [[nodiscard]] SceneNode activityAndUsage(const QColor& color) const;
    [[nodiscard]] SceneNode history() const;
    [[nodiscard]] SceneNode activityDots() const;

    const DiskMonitor& m_monitor;
    const SettingsStore& m_settings;
    const ThemeManager& m_themes;
};

} // namespace orvelle
