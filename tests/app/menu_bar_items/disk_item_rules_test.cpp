#include "app/menu_bar_items/disk_item_rules.h"
#include "core/disk_monitor.h"
#include "settings/system_colors.h"

#include <gtest/gtest.h>

namespace orvelle {
namespace {

double used(quint64 totalSpace, quint64 freeSpace) {
    DiskVolumeInfo volume;
    volume.totalSpace = totalSpace;
    volume.freeSpace = freeSpace;
    return usedSpaceFraction(volume);
}

TEST(UsedSpace, IsTheShareThatIsNotFree) {
    EXPECT_DOUBLE_EQ(used(1000, 250), 0.75);
    EXPECT_DOUBLE_EQ(used(1000, 1000), 0);
    EXPECT_DOUBLE_EQ(used(1000, 0), 1);
}

TEST(UsedSpace, IsNothingOfAnUnknownTotal) {
    EXPECT_EQ(used(0, 0), 0);
}

TEST(UsedSpace, IsNothingWhereMoreIsFreeThanThereIs) {
    EXPECT_EQ(used(1000, 1001), 0);
}

TEST(ActivityArrow, LightsAbove1024BytesPerSecond) {
    const QColor directionColor(40, 80, 120);
    QColor idle = SystemColors::grey;
    idle.setAlphaF(0.4F);
    EXPECT_EQ(activityArrowColor(0, directionColor), idle);
    EXPECT_EQ(activityArrowColor(1024, directionColor), idle);
    EXPECT_EQ(activityArrowColor(1024.5, directionColor), directionColor);
}

} // namespace
} // namespace orvelle
