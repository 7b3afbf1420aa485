#pragma once

#include "menu_bar/menu_bar_item.h"

#include <optional>

namespace orvelle {

class DiskMonitor;

/// The disk module's place in the menu bar: how full the first volume is, and whether the disks are being
/// read and written.
class DiskMenuBarItem : public MenuBarItem<ModuleId::disk, DiskMonitor> {
public:
    using MenuBarItem::MenuBarItem;

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
};

/// The colour of the arrow of one direction: `color` while bytes flow, else a faint grey.
[[nodiscard]] QColor activityArrowColor(double bytesPerSecond, const QColor& color);

} // namespace orvelle
