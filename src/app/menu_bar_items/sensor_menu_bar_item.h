#pragma once

#include "app/menu_bar_items/module_item_view.h"

namespace orvelle {

class SensorMonitor;
class SettingsStore;
class ThemeManager;

/// The sensor module's place in the menu bar: the CPU temperature as text or dots, or its history. What it
/// refers to must outlive it.
class SensorMenuBarItem final : public ModuleItemView {
public:
    SensorMenuBarItem(const SensorMonitor& monitor, const SettingsStore& settings,
                      const ThemeManager& themes);

    [[nodiscard]] QString accessibleName() const override { return QStringLiteral("Sensors"); }
    [[nodiscard]] QString accessibleText() const override;

private:
    [[nodiscard]] ItemPart body(const QList<BarLook>& shown) const override;

    const SensorMonitor& m_monitor;
    const SettingsStore& m_settings;
    const ThemeManager& m_themes;
};

} // namespace orvelle
