#include "item_fixture.h"
#include "menu_bar/menu_bar_item.h"
#include "menu_bar/scene_layout.h"
#include "theme/fonts.h"

#include <algorithm>
#include <limits>

namespace orvelle {
namespace {

const QColor tint(200, 30, 10);

class MenuBarItemTest : public ItemFixture {};

TEST_F(MenuBarItemTest, DotsHaveTheirColoursFromLeftToRight) {
    const SceneNode dots = dotsNode({Qt::red, Qt::green, Qt::blue});
    EXPECT_EQ(extentOf(dots).size, QSizeF(16, 4));
    const QImage image = picture(dots, 16);
    const int centerLine = image.height() / 2;
    EXPECT_EQ(image.pixelColor(4, centerLine), QColor(Qt::red));
    EXPECT_EQ(image.pixelColor(16, centerLine), QColor(Qt::green));
    EXPECT_EQ(image.pixelColor(28, centerLine), QColor(Qt::blue));
    EXPECT_EQ(countRuns(image, centerLine, 0, image.width()), 3);
}

TEST_F(MenuBarItemTest, NoDotsTakeNoRoom) {
    EXPECT_EQ(extentOf(dotsNode({})).size.width(), 0);
}

TEST_F(MenuBarItemTest, ALevelBarIsFilledUpToItsFraction) {
    const QImage image = picture(levelBarNode({28, 8}, 3, 0.5, tint, true), 28);
    const int centerLine = image.height() / 2;
    EXPECT_GT(image.pixelColor(26, centerLine).alpha(), 200);
    EXPECT_EQ(image.pixelColor(30, centerLine).alpha(), 38) << "only the track, white at 0.15";
}

TEST_F(MenuBarItemTest, ALevelIsTheColourAtFourFifthsOverTheTrack) {
    const QImage full = picture(levelBarNode({28, 8}, 3, 1, tint, true), 28);
    const QColor level = full.pixelColor(26, full.height() / 2);
    EXPECT_NEAR(level.alphaF(), 0.8 + 0.2 * 0.15, 0.005);
    // A black background separates the colour's part from the white track's.
    EXPECT_NEAR(level.redF() * level.alphaF(), tint.redF() * 0.8 + 0.2 * 0.15, 0.01);
    EXPECT_NEAR(level.blueF() * level.alphaF(), tint.blueF() * 0.8 + 0.2 * 0.15, 0.01);
}

TEST_F(MenuBarItemTest, ALevelAboveOneJustFillsTheBar) {
    EXPECT_EQ(picture(levelBarNode({28, 8}, 3, 7, tint, true), 40),
              picture(levelBarNode({28, 8}, 3, 1, tint, true), 40));
}

TEST_F(MenuBarItemTest, ALowLevelStaysInsideTheRoundedTrack) {
    const QImage empty = picture(levelBarNode({28, 8}, 3, 0, tint, true), 28);
    const QImage low = picture(levelBarNode({28, 8}, 3, 0.04, tint, true), 28);
    constexpr double levelPerTrack =
        0.95 / 0.15; // of their opacities, where they cover the same part of a pixel
    for (int y = 0; y < empty.height(); ++y)
        EXPECT_LE(qAlpha(low.pixel(0, y)), levelPerTrack * qAlpha(empty.pixel(0, y)) + 8) << "in line " << y;
    EXPECT_NE(empty, low);
}

TEST_F(MenuBarItemTest, TextIsCentredOnItsCapitals) {
    const QRect ink = paintedRect(picture(textNode(QStringLiteral("H"), systemFont(11), Qt::white), 20));
    EXPECT_NEAR(ink.top() + ink.bottom() + 1, barHeight * pixelsPerPoint, 2);
}

TEST_F(MenuBarItemTest, CondensedTextKeepsItsHeightAndAllItsLetters) {
    const SceneNode text = textNode(QStringLiteral("HHHH"), systemFont(11), Qt::white);
    const QRect wide = paintedRect(picture(text, 60));
    const QRect narrow = paintedRect(picture(text, extentOf(text).size.width() * 0.8));
    EXPECT_NEAR(narrow.height(), wide.height(), 1);
    EXPECT_NEAR(narrow.width(), wide.width() * 0.8, 3);
}

TEST_F(MenuBarItemTest, AnIconIsTwelvePointsSquareInTheModulesColour) {
    const SceneNode icon = iconNode(QStringLiteral("cpu"), tint);
    EXPECT_EQ(extentOf(icon).size, QSizeF(12, 12));
    EXPECT_GT(countPixels(picture(icon, 12), tint), 20);
}

TEST_F(MenuBarItemTest, AHistoryIsDrawnFromItsLastTwentySamples) {
    const QSizeF size(32, 12);
    QList<double> history(20, 0.5);
    const QImage twenty = picture(historyNode(history, tint, 1, size), 32);
    history.prepend(1.0);
    EXPECT_EQ(picture(historyNode(history, tint, 1, size), 32), twenty) << "the 21st is left out";
    history = QList<double>(20, 0.5);
    history.first() = 1.0;
    EXPECT_NE(picture(historyNode(history, tint, 1, size), 32), twenty) << "the 20th is drawn";
}

TEST_F(MenuBarItemTest, AHistoryIsALineOfOnePointOverAFaintFill) {
    const QImage image = picture(historyNode(QList<double>(20, 0.5), tint, 1, {32, 12}), 32);
    const int column = image.width() / 2;
    const int lastLineOfCanvas = (11 + 6) * 2 - 1;
    const QColor fill = image.pixelColor(column, lastLineOfCanvas);
    EXPECT_EQ(fill.alpha(), 38) << "0.15";
    EXPECT_NEAR(fill.red(), tint.red(), 4);
    double lineWidthPixels = 0;
    for (int y = 0; y < image.height(); ++y)
        lineWidthPixels += std::max(0.0, (image.pixelColor(column, y).alphaF() - 0.15) / 0.85);
    EXPECT_NEAR(lineWidthPixels, pixelsPerPoint, 0.25);
}

TEST_F(MenuBarItemTest, AnEmptyHistoryKeepsItsSpaceAndDrawsNothing) {
    const SceneNode history = historyNode({}, tint, 1, {32, 12});
    EXPECT_EQ(extentOf(history).size, QSizeF(32, 12));
    EXPECT_TRUE(paintedRect(picture(history, 32)).isEmpty());
}

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

TEST(LitDots, StayBetweenNoneAndAll) {
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
