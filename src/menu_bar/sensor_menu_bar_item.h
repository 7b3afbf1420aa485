#pragma once

#include "menu_bar/menu_bar_item.h"

namespace orvelle {

class SensorMonitor;

/// The sensor module's item: the CPU temperature as text or dots, or its history.
class SensorMenuBarItem : public MenuBarItem<ModuleId::sensor, SensorMonitor> {
public:
    using MenuBarItem::MenuBarItem;

    /// The current values in the user's style.
    [[nodiscard]] ItemScene body() const;
    /// The current values in a square.
    [[nodiscard]] IconScene icon() const;

private:
    [[nodiscard]] SceneNode picture() const;
    [[nodiscard]] QString accessibleText() const;
};

/// "45°", or "--°" for an unknown temperature.
[[nodiscard]] QString temperatureText(double celsius);

/// `color` at opacity 0.7 below 60, yellow from 60 and red from 80.
[[nodiscard]] QColor temperatureColor(double celsius, const QColor& color);

/// Five dots from green to red, one lit for each full 20 degrees.
[[nodiscard]] QList<QColor> temperatureDotColors(double celsius);

} // namespace orvelle
