#pragma once

#include "app/menu_bar_items/item_part.h"
#include "app/shell/status_item_view.h"

namespace orvelle {

class SensorMonitor;
class SettingsStore;
class ThemeManager;

/// The sensor module's place in the menu bar: the CPU temperature as text or dots, or its history. What it
/// refers to must outlive it.
class SensorMenuBarItem final : public StatusItemView {
public:
    SensorMenuBarItem(const SensorMonitor& monitor, const SettingsStore& settings,
                      const ThemeManager& themes);

    void paint(QPainter& painter, const QRectF& bounds) const override;
    [[nodiscard]] QString accessibleName() const override { return QStringLiteral("Sensors"); }
    [[nodiscard]] QString accessibleText() const override;

private:
    [[nodiscard]] ItemPart body() const;

    const SensorMonitor& m_monitor;
    const SettingsStore& m_settings;
    const ThemeManager& m_themes;
};

} // namespace orvelle
