#pragma once

#include "menu_bar/menu_bar_item.h"

namespace orvelle {

class BatteryMonitor;

/// The battery module's item: the charge as glyph, text, dots or history. On a machine without a battery it
/// shows external power.
class BatteryMenuBarItem : public MenuBarItem<ModuleId::battery, BatteryMonitor> {
public:
    using MenuBarItem::MenuBarItem;

    /// The current values in the user's style.
    [[nodiscard]] ItemScene body() const;
    /// The current values in a square.
    [[nodiscard]] IconScene icon() const;

private:
    [[nodiscard]] SceneNode picture() const;
    [[nodiscard]] QString accessibleText() const;
    /// The charge with a bolt beside it while charging.
    [[nodiscard]] SceneNode charge(double fontSize) const;
};

/// Converts a charge in percent to a fraction, clamped to 0 to 1.
[[nodiscard]] double chargedFraction(qint64 charge);

/// Green while charging; otherwise red below 21, yellow below 41, and `color` from there on.
[[nodiscard]] QColor batteryColor(qint64 charge, bool isCharging, const QColor& color);

/// Five dots of one colour, one lit for each full fifth of the charge.
[[nodiscard]] QList<QColor> batteryDotColors(qint64 charge, const QColor& color);

} // namespace orvelle
