#pragma once

#include "app/menu_bar_items/module_item_view.h"

namespace orvelle {

class NetworkMonitor;
class SettingsStore;
class ThemeManager;

/// The network module's place in the menu bar: the upload rate above the download rate, their histories, or a
/// dot for each direction. What it refers to must outlive it.
class NetworkMenuBarItem final : public ModuleItemView {
public:
    NetworkMenuBarItem(const NetworkMonitor& monitor, const SettingsStore& settings,
                       const ThemeManager& themes);

    [[nodiscard]] QString accessibleName() const override { return QStringLiteral("Network"); }
    [[nodiscard]] QString accessibleText() const override;

private:
    [[nodiscard]] ItemPart body(const QList<BarLook>& shown) const override;
    /// Both rates as bare text.
    [[nodiscard]] ItemPart rates() const;
    /// Both rates, each behind an arrow in the colour of its direction.
    [[nodiscard]] ItemPart ratePair() const;
    [[nodiscard]] ItemPart history(double width) const;
    [[nodiscard]] ItemPart activityDots() const;

    const NetworkMonitor& m_monitor;
    const SettingsStore& m_settings;
    const ThemeManager& m_themes;
};

} // namespace orvelle
