#include "menu_bar/disk_item_rules.h"
#include "theme/system_colors.h"

#include <gtest/gtest.h>

namespace orvelle {
namespace {

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
