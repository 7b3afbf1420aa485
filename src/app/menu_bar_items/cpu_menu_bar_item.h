#pragma once

#include "app/menu_bar_items/module_item_view.h"

namespace orvelle {

class CPUMonitor;
class SettingsStore;
class ThemeManager;

/// The CPU module's place in the menu bar: total usage, a bar or a dot for each core, or the usage history.
/// What it refers to must outlive it.
class CPUMenuBarItem final : public ModuleItemView {
public:
    CPUMenuBarItem(const CPUMonitor& monitor, const SettingsStore& settings, const ThemeManager& themes);

    [[nodiscard]] EasedBars bars() const override;
    [[nodiscard]] QString accessibleName() const override { return QStringLiteral("CPU"); }
    [[nodiscard]] QString accessibleText() const override;

private:
    [[nodiscard]] ItemPart body(const QList<BarLook>& shown) const override;
    [[nodiscard]] ItemPart coreDots(const QColor& color) const;

    const CPUMonitor& m_monitor;
    const SettingsStore& m_settings;
    const ThemeManager& m_themes;
};

} // namespace orvelle
