#include "menu_bar/item_rules.h"

#include <gtest/gtest.h>

#include <limits>

namespace orvelle {
namespace {

QList<double> counted(qsizetype count) {
    QList<double> samples;
    for (qsizetype sample = 0; sample < count; ++sample)
        samples.append(static_cast<double>(sample));
    return samples;
}

TEST(RecentSamples, AreAllOfAShortHistory) {
    EXPECT_EQ(recentSamples({}), QList<double>());
    EXPECT_EQ(recentSamples(counted(3)), counted(3));
    EXPECT_EQ(recentSamples(counted(20)), counted(20));
}

TEST(RecentSamples, AreTheNewestTwentyOfALongHistory) {
    EXPECT_EQ(recentSamples(counted(21)).first(), 1) << "the oldest sample is left out";
    EXPECT_EQ(recentSamples(counted(21)).size(), 20);
    EXPECT_EQ(recentSamples(counted(60)).first(), 40);
    EXPECT_EQ(recentSamples(counted(60)).last(), 59);
}

TEST(LitDots, AreTheWholePartOfTheLevel) {
    EXPECT_EQ(litDotCount(0.99 * 5, 5), 4);
    EXPECT_EQ(litDotCount(1.0 * 5, 5), 5);
    EXPECT_EQ(litDotCount(0, 5), 0);
}

TEST(LitDots, AreNeverFewerThanNoneNorMoreThanAll) {
    EXPECT_EQ(litDotCount(-3, 5), 0);
    EXPECT_EQ(litDotCount(1e15, 5), 5);
}

TEST(LitDotsDeathTest, ALevelThatIsNotFiniteStopsTheProcess) {
    EXPECT_DEATH((void)litDotCount(std::numeric_limits<double>::quiet_NaN(), 5), "truncation");
    EXPECT_DEATH((void)litDotCount(std::numeric_limits<double>::infinity(), 5), "truncation");
}

TEST(MeterColors, DimTheDotsThatAreNotLit) {
    const QList<QColor> colors = meterColors(QColor(10, 20, 30), 2, 3, 0.2);
    EXPECT_EQ(colors, QList<QColor>({QColor(10, 20, 30), QColor(10, 20, 30), QColor(10, 20, 30, 51)}));
}

TEST(MeterColors, DimATranslucentColourFurther) {
    EXPECT_EQ(meterColors(QColor(255, 255, 255, 128), 0, 1, 0.5).first().alpha(), 64);
}

TEST(Activity, IsMoreThan1024BytesPerSecond) {
    EXPECT_FALSE(isActive(0));
    EXPECT_FALSE(isActive(1024));
    EXPECT_TRUE(isActive(1024.1));
}

TEST(ActivityDots, AreDimmedWhileIdle) {
    EXPECT_EQ(activityDotColor(1025, QColor(10, 20, 30)), QColor(10, 20, 30));
    EXPECT_EQ(activityDotColor(1024, QColor(10, 20, 30)), QColor(10, 20, 30, 51));
}

} // namespace
} // namespace orvelle
