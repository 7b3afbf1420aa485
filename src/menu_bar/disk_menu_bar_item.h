#pragma once

#include "menu_bar/menu_bar_item.h"

#include <optional>

namespace orvelle {

class DiskMonitor;

/// The disk module's item: the used share of the first volume, and whether the disks are read or written.
class DiskMenuBarItem : public MenuBarItem<ModuleId::disk, DiskMonitor> {
public:
    using MenuBarItem::MenuBarItem;

    /// The current values in the user's style.
    [[nodiscard]] ItemScene body() const;
    /// The current values in a square.
    [[nodiscard]] IconScene icon() const;

private:
    [[nodiscard]] SceneNode picture() const;
    [[nodiscard]] QString accessibleText() const;
    /// The used share of the first volume; nothing while no volume is mounted.
    [[nodiscard]] std::optional<double> used() const;
    /// `parts`, followed by the used share of the first volume if one is mounted.
    [[nodiscard]] SceneNode withUsedText(std::vector<SceneNode> parts) const;
    /// An arrow for each direction above the bar of the first volume.
    [[nodiscard]] SceneNode activityAndUsage(const QColor& color) const;
    [[nodiscard]] SceneNode history() const;
    [[nodiscard]] SceneNode activityDots() const;
};

/// The colour of one direction's arrow: `color` while bytes flow, otherwise a faint grey.
[[nodiscard]] QColor activityArrowColor(double bytesPerSecond, const QColor& color);

} // namespace orvelle
