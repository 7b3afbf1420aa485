#pragma once

#include "menu_bar/menu_bar_item.h"

namespace orvelle {

class BatteryMonitor;

/// The battery module's place in the menu bar: the charge as glyph, text, dots or history; on a machine
/// without a battery that it runs on external power.
class BatteryMenuBarItem : public MenuBarItem<ModuleId::battery, BatteryMonitor> {
public:
    using MenuBarItem::MenuBarItem;

    /// The present values in the style that the user chose.
    [[nodiscard]] ItemScene body() const;

private:
    [[nodiscard]] SceneNode picture() const;
    [[nodiscard]] QString accessibleText() const;
    /// The charge with a bolt beside it while charging.
    [[nodiscard]] SceneNode charge(double fontSize) const;
};

/// A charge in percent as a fraction from 0 to 1, whatever the battery says.
[[nodiscard]] double chargedFraction(qint64 charge);

/// Green while charging; otherwise red below 21, yellow below 41, and else `color`.
[[nodiscard]] QColor batteryColor(qint64 charge, bool isCharging, const QColor& color);

/// Five dots of one colour, one lit for each full fifth of the charge.
[[nodiscard]] QList<QColor> batteryDotColors(qint64 charge, const QColor& color);

} // namespace orvelle
