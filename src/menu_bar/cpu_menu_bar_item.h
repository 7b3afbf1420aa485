#pragma once

#include "menu_bar/menu_bar_item.h"

namespace orvelle {

class CPUMonitor;

/// The CPU module's item: total usage, a bar or a dot for each core, or the usage history.
class CPUMenuBarItem : public MenuBarItem<ModuleId::cpu, CPUMonitor> {
public:
    using MenuBarItem::MenuBarItem;

    /// The current values in the user's style.
    [[nodiscard]] ItemScene body() const;
    /// The current values in a square.
    [[nodiscard]] IconScene icon() const;

private:
    [[nodiscard]] SceneNode picture() const;
    [[nodiscard]] QString accessibleText() const;
    [[nodiscard]] SceneNode coreBars(const QColor& color) const;
    [[nodiscard]] SceneNode coreDots(const QColor& color) const;
};

/// The number of cores that get a dot.
[[nodiscard]] qsizetype coreDotCount(qsizetype coreCount);

/// The colour of a core's dot: `color` at three strengths as the load, a fraction, grows, and red from 0.8.
[[nodiscard]] QColor coreDotColor(double load, const QColor& color);

} // namespace orvelle
