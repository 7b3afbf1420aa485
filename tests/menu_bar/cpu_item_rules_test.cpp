#include "menu_bar/cpu_item_rules.h"
#include "theme/system_colors.h"

#include <gtest/gtest.h>

namespace orvelle {
namespace {

const QColor cpuModuleColor(40, 80, 120);

TEST(CoreBars, TakeThreeAndAHalfPointsEachUpToTwelveCores) {
    EXPECT_EQ(coreBarsWidth(0), 0);
    EXPECT_EQ(coreBarsWidth(1), 3.5);
    EXPECT_EQ(coreBarsWidth(12), 42);
    EXPECT_EQ(coreBarsWidth(16), 42);
}

TEST(CoreBars, AreOneForEachCoreOnePointApart) {
    const QList<QRectF> bars = coreBarSlots(16);
    ASSERT_EQ(bars.size(), 16);
    EXPECT_DOUBLE_EQ(bars.at(1).left() - bars.at(0).right(), 1);
    EXPECT_DOUBLE_EQ(bars.at(0).width(), 27.0 / 16);
    EXPECT_DOUBLE_EQ(bars.last().right(), 42);
    EXPECT_EQ(bars.first().height(), 14);
}

TEST(CoreBars, OfOneCoreFillTheFrame) {
    EXPECT_EQ(coreBarSlots(1), QList<QRectF>({QRectF(0, 0, 3.5, 14)}));
}

TEST(CoreBars, AreNoneWithoutCores) {
    EXPECT_TRUE(coreBarSlots(0).isEmpty());
}

TEST(CoreBars, OfVeryManyCoresStayWithinTheFrameAndAreAsWideAsTheirGaps) {
    for (const qsizetype count : {22, 43, 128, 1024}) {
        const QList<QRectF> bars = coreBarSlots(count);
        ASSERT_EQ(bars.size(), count);
        EXPECT_NEAR(bars.last().right(), 42, 1e-9);
        EXPECT_NEAR(bars.at(1).left() - bars.at(0).right(), bars.at(0).width(), 1e-9);
    }
}

TEST(CoreDots, StopAtEightCores) {
    EXPECT_EQ(coreDotCount(0), 0);
    EXPECT_EQ(coreDotCount(8), 8);
    EXPECT_EQ(coreDotCount(16), 8);
}

TEST(CoreDots, GrowStrongerWithTheLoadAndTurnRed) {
    QColor faint = cpuModuleColor;
    faint.setAlphaF(0.3F);
    QColor half = cpuModuleColor;
    half.setAlphaF(0.6F);
    EXPECT_EQ(coreDotColor(0, cpuModuleColor), faint);
    EXPECT_EQ(coreDotColor(0.2999, cpuModuleColor), faint);
    EXPECT_EQ(coreDotColor(0.3, cpuModuleColor), half);
    EXPECT_EQ(coreDotColor(0.5999, cpuModuleColor), half);
    EXPECT_EQ(coreDotColor(0.6, cpuModuleColor), cpuModuleColor);
    EXPECT_EQ(coreDotColor(0.7999, cpuModuleColor), cpuModuleColor);
    EXPECT_EQ(coreDotColor(0.8, cpuModuleColor), SystemColors::red);
    EXPECT_EQ(coreDotColor(1, cpuModuleColor), SystemColors::red);
}

} // namespace
} // namespace orvelle
