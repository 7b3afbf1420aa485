#pragma once

#include "app/menu_bar_items/module_item_view.h"

namespace orvelle {

class BatteryMonitor;
class SettingsStore;
class ThemeManager;

/// The battery module's place in the menu bar: the charge as glyph, text, dots or history; on a machine
/// without a battery that it runs on external power. What it refers to must outlive it.
class BatteryMenuBarItem final : public ModuleItemView {
public:
    BatteryMenuBarItem(const BatteryMonitor& monitor, const SettingsStore& settings,
                       const ThemeManager& themes);

    [[nodiscard]] QString accessibleName() const override { return QStringLiteral("Battery"); }
    [[nodiscard]] QString accessibleText() const override;

private:
    [[nodiscard]] ItemPart body(const QList<BarLook>& shown) const override;
    /// The charge with a bolt beside it while charging.
    [[nodiscard]] ItemPart charge(double fontSize) const;

    const BatteryMonitor& m_monitor;
    const SettingsStore& m_settings;
    const ThemeManager& m_themes;
};

} // namespace orvelle
