#include "menu_bar/disk_item_rules.h"

#include "menu_bar/item_rules.h"
#include "theme/opacity.h"
#include "theme/system_colors.h"

namespace orvelle {

QColor activityArrowColor(double bytesPerSecond, const QColor& color) {
    constexpr double idleOpacity = 0.4;
    return isActive(bytesPerSecond) ? color : withOpacity(SystemColors::grey, idleOpacity);
}

} // namespace orvelle
