#pragma once

#include "app/menu_bar_items/module_item_view.h"

namespace orvelle {

class MemoryMonitor;
class SettingsStore;
class ThemeManager;

/// The memory module's place in the menu bar: the used share as text, bar or dots, or the pressure history.
/// What it refers to must outlive it.
class MemoryMenuBarItem final : public ModuleItemView {
public:
    MemoryMenuBarItem(const MemoryMonitor& monitor, const SettingsStore& settings,
                      const ThemeManager& themes);

    [[nodiscard]] EasedBars bars() const override;
    [[nodiscard]] QString accessibleName() const override { return QStringLiteral("Memory"); }
    [[nodiscard]] QString accessibleText() const override;

private:
    [[nodiscard]] ItemPart body(const QList<BarLook>& shown) const override;

    const MemoryMonitor& m_monitor;
    const SettingsStore& m_settings;
    const ThemeManager& m_themes;
};

} // namespace orvelle
