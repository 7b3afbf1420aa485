#include "app/menu_bar_items/disk_item_rules.h"

#include "app/menu_bar_items/item_rules.h"
#include "core/disk_monitor.h"
#include "look/opacity.h"
#include "settings/system_colors.h"

namespace orvelle {

double usedSpaceFraction(const DiskVolumeInfo& volume) {
    if (volume.freeSpace >= volume.totalSpace)
        return 0;
    return static_cast<double>(volume.totalSpace - volume.freeSpace) / static_cast<double>(volume.totalSpace);
}

QColor activityArrowColor(double bytesPerSecond, const QColor& color) {
    constexpr double idleOpacity = 0.4;
    return isActive(bytesPerSecond) ? color : withOpacity(SystemColors::grey, idleOpacity);
}

} // namespace orvelle
