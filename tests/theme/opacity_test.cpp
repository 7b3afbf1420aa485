#include "theme/opacity.h"

#include <gtest/gtest.h>

namespace orvelle {
namespace {

constexpr QColor grey(10, 20, 30);

TEST(OpacityTest, IsMultipliedWithTheOneThatAColourHas) {
    EXPECT_EQ(withOpacity(grey, 0.4).rgba(), qRgba(10, 20, 30, 102));
    EXPECT_EQ(withOpacity(QColor(10, 20, 30, 51), 0.5).rgba(), qRgba(10, 20, 30, 26));
    EXPECT_EQ(withOpacity(QColor(10, 20, 30, 51), 1).rgba(), qRgba(10, 20, 30, 51));
    EXPECT_EQ(withOpacity(QColor(10, 20, 30, 0), 0.5).alpha(), 0);
}

TEST(OpacityTest, StaysBetweenNothingAndAll) {
    EXPECT_EQ(withOpacity(grey, 0).alpha(), 0);
    EXPECT_EQ(withOpacity(grey, -1).alpha(), 0);
    EXPECT_EQ(withOpacity(grey, 2), grey);
}

} // namespace
} // namespace orvelle
