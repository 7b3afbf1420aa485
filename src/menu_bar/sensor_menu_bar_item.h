#pragma once

#include "menu_bar/menu_bar_item.h"

namespace orvelle {

class SensorMonitor;

/// The sensor module's place in the menu bar: the CPU temperature as text or dots, or its history.
class SensorMenuBarItem : public MenuBarItem<ModuleId::sensor, SensorMonitor> {
public:
    using MenuBarItem::MenuBarItem;

    /// The present values in the style that the user chose.
    [[nodiscard]] ItemScene body() const;

private:
    [[nodiscard]] SceneNode picture() const;
    [[nodiscard]] QString accessibleText() const;
};

/// "45°", or "--°" for a temperature that is not known.
[[nodiscard]] QString temperatureText(double celsius);

/// `color` at opacity 0.7 below 60, yellow from 60 and red from 80.
[[nodiscard]] QColor temperatureColor(double celsius, const QColor& color);

/// Five dots from green to red, one lit for each full 20 degrees.
[[nodiscard]] QList<QColor> temperatureDotColors(double celsius);

} // namespace orvelle
