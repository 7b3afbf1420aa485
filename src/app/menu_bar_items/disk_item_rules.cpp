#include "app/menu_bar_items/disk_item_rules.h"

#include "app/menu_bar_items/item_rules.h"
#include "look/opacity.h"
#include "settings/system_colors.h"

namespace orvelle {

QColor activityArrowColor(double bytesPerSecond, const QColor& color) {
    constexpr double idleOpacity = 0.4;
    return isActive(bytesPerSecond) ? color : withOpacity(SystemColors::grey, idleOpacity);
}

} // namespace orvelle
