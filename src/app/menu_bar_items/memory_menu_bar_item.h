#pragma once

#include "app/menu_bar_items/item_part.h"
#include "app/shell/status_item_view.h"

namespace orvelle {

class MemoryMonitor;
class SettingsStore;
class ThemeManager;

/// The memory module's place in the menu bar: the used share as text, bar or dots, or the pressure history.
/// What it refers to must outlive it.
class MemoryMenuBarItem final : public StatusItemView {
public:
    MemoryMenuBarItem(const MemoryMonitor& monitor, const SettingsStore& settings,
                      const ThemeManager& themes);

    void paint(QPainter& painter, const QRectF& bounds) const override;
    [[nodiscard]] EasedBars bars() const override;
    void paintWithBars(QPainter& painter, const QRectF& bounds, const QList<BarLook>& shown) const override;
    [[nodiscard]] QString accessibleName() const override { return QStringLiteral("Memory"); }
    [[nodiscard]] QString accessibleText() const override;

private:
    /// `bar` is drawn in the style that has one.
    [[nodiscard]] ItemPart body(const BarLook& bar) const;

    const MemoryMonitor& m_monitor;
    const SettingsStore& m_settings;
    const ThemeManager& m_themes;
};

} // namespace orvelle
