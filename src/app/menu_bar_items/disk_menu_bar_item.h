#pragma once

#include "app/menu_bar_items/module_item_view.h"

#include <optional>

namespace orvelle {

class DiskMonitor;
class SettingsStore;
class ThemeManager;

/// The disk module's place in the menu bar: how full the first volume is, and whether the disks are being
/// read and written. What it refers to must outlive it.
class DiskMenuBarItem final : public ModuleItemView {
public:
    DiskMenuBarItem(const DiskMonitor& monitor, const SettingsStore& settings, const ThemeManager& themes);

    [[nodiscard]] QString accessibleName() const override { return QStringLiteral("Disk"); }
    [[nodiscard]] QString accessibleText() const override;

private:
    [[nodiscard]] ItemPart body(const QList<BarLook>& shown) const override;
    /// The used share of the first volume; nothing while none is mounted.
    [[nodiscard]] std::optional<double> used() const;
    /// `parts` and, when a volume is mounted, how full the first one is.
    [[nodiscard]] ItemPart withUsedText(QList<ItemPart> parts) const;
    /// An arrow for each direction above the bar of the first volume.
    [[nodiscard]] ItemPart activityAndUsage(const QColor& color) const;
    [[nodiscard]] ItemPart history() const;
    [[nodiscard]] ItemPart activityDots() const;

    const DiskMonitor& m_monitor;
    const SettingsStore& m_settings;
    const ThemeManager& m_themes;
};

} // namespace orvelle
