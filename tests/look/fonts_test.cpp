#include "look/fonts.h"

#include <QFontInfo>
#include <QFontMetricsF>
#include <gtest/gtest.h>

#include <limits>

namespace orvelle {
namespace {

TEST(Fonts, AWholeSizeIsThatManyPixels) {
    EXPECT_EQ(systemFont(11).pixelSize(), 11);
    EXPECT_EQ(monospacedSystemFont(8, QFont::Medium).pixelSize(), 8);
}

TEST(Fonts, AFractionalSizeIsKept) {
    const double between = QFontMetricsF(systemFont(14.5)).height();
    EXPECT_NEAR(QFontInfo(systemFont(14.5)).pointSizeF() * 96 / 72, 14.5, 0.5);
    EXPECT_GE(between, QFontMetricsF(systemFont(14)).height());
    EXPECT_LE(between, QFontMetricsF(systemFont(15)).height());
}

TEST(Fonts, TheWeightIsAsAsked) {
    EXPECT_EQ(systemFont(10, QFont::DemiBold).weight(), QFont::DemiBold);
    EXPECT_EQ(systemFont(10).weight(), QFont::Normal);
    EXPECT_EQ(roundedSystemFont(14, QFont::Bold).weight(), QFont::Bold);
}

TEST(Fonts, EveryMonospacedGlyphHasTheSameAdvance) {
    const QFontMetricsF metrics(monospacedSystemFont(11, QFont::Medium));
    EXPECT_DOUBLE_EQ(metrics.horizontalAdvance(QStringLiteral("1")),
                     metrics.horizontalAdvance(QStringLiteral("0")));
    EXPECT_DOUBLE_EQ(metrics.horizontalAdvance(QStringLiteral("%")),
                     metrics.horizontalAdvance(QStringLiteral(".")));
}

TEST(Fonts, ASizeWithoutMeaningIsMadeDrawable) {
    EXPECT_EQ(systemFont(0).pixelSize(), 1);
    EXPECT_EQ(systemFont(-4).pixelSize(), 1);
    EXPECT_EQ(systemFont(std::numeric_limits<double>::quiet_NaN()).pixelSize(), 1);
    EXPECT_EQ(systemFont(std::numeric_limits<double>::infinity()).pixelSize(), 1000);
}

} // namespace
} // namespace orvelle
