#pragma once

#include "core/clock_monitor.h"
#include "menu_bar/menu_bar_item.h"

namespace orvelle {

class ClockMenuBarItem : public MenuBarItem<ModuleId::clock, ClockMonitor> {
public:
    using MenuBarItem::MenuBarItem;

    [[nodiscard]] ItemScene body() const {
        const QString ticks = QString::number(m_monitor.ticks());
        return scene(row({iconNode(QStringLiteral("network"), moduleColor()), valueNode(ticks)}, 2),
                     QStringLiteral("Clock %1").arg(ticks));
    }
};

} // namespace orvelle
