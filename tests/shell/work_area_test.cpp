#include "shell/x11/work_area.h"

#include <gtest/gtest.h>

#include <limits>

namespace orvelle {
namespace {

const QRect fullHd(0, 0, 1920, 1080);
const QRect rightOfIt(1920, 0, 1280, 1024);

TEST(WorkAreas, AreTakenFourNumbersAtATime) {
    const std::vector<std::uint32_t> values{0, 32, 1920, 1048, 1920, 0, 1280, 1024};
    EXPECT_EQ(workAreasIn(values), (std::vector<QRect>{QRect(0, 32, 1920, 1048), rightOfIt}));
}

TEST(WorkAreas, AreNoneWithoutNumbers) {
    EXPECT_TRUE(workAreasIn({}).empty());
}

TEST(WorkAreas, LackAnIncompleteOne) {
    const std::vector<std::uint32_t> values{0, 32, 1920, 1048, 1920, 0, 1280};
    EXPECT_EQ(workAreasIn(values), std::vector<QRect>{QRect(0, 32, 1920, 1048)});
    EXPECT_TRUE(workAreasIn(std::span(values).first(3)).empty());
}

TEST(WorkAreas, LackThoseThatNoRootWindowCanHave) {
    constexpr std::uint32_t most = std::numeric_limits<std::uint32_t>::max();
    const std::vector<std::uint32_t> values{0,    0, 0, 0,    0, 10, 1920,   0, most, 0,
                                            1920, 1, 0, most, 1, 1,  65536u, 0, 1,    1};
    EXPECT_TRUE(workAreasIn(values).empty());
}

TEST(HeightAboveWorkArea, IsTheHeightOfAPanelAtTheTop) {
    EXPECT_EQ(heightAboveWorkArea(fullHd, {QRect(0, 32, 1920, 1048)}), 32);
    EXPECT_EQ(heightAboveWorkArea(fullHd, {fullHd}), 0);
    EXPECT_EQ(heightAboveWorkArea(fullHd, {QRect(64, 0, 1856, 1000)}), 0);
}

TEST(HeightAboveWorkArea, IsNothingWithoutAWorkArea) {
    EXPECT_EQ(heightAboveWorkArea(fullHd, {}), 0);
}

TEST(HeightAboveWorkArea, IsThatOfTheScreenAmongSeveral) {
    const std::vector<QRect> areas{rightOfIt, QRect(0, 32, 1920, 1048)};
    EXPECT_EQ(heightAboveWorkArea(fullHd, areas), 32);
    EXPECT_EQ(heightAboveWorkArea(rightOfIt, areas), 0);
}

TEST(HeightAboveWorkArea, IsThatOfTheAreaThatSharesMostWithTheScreen) {
    const QRect slightlyWithin(1910, 0, 1280, 1024);
    EXPECT_EQ(heightAboveWorkArea(fullHd, {slightlyWithin, QRect(0, 32, 1920, 1048)}), 32);
}

TEST(HeightAboveWorkArea, CountsFromTheScreensOwnUpperEdge) {
    EXPECT_EQ(heightAboveWorkArea(QRect(0, 1080, 1920, 1080), {QRect(0, 1110, 1920, 1050)}), 30);
    EXPECT_EQ(heightAboveWorkArea(QRect(0, 200, 1920, 1080), {QRect(0, 32, 3840, 1248)}), 0);
}

TEST(HeightAboveWorkArea, IsThatOfAllScreensTogetherWhereNoOtherIsKnown) {
    const std::vector<QRect> together{QRect(0, 32, 3200, 1048)};
    EXPECT_EQ(heightAboveWorkArea(fullHd, together), 32);
    EXPECT_EQ(heightAboveWorkArea(rightOfIt, together), 32);
}

TEST(HeightAboveWorkArea, IsNothingWhenTheWorkAreaMakesNoSense) {
    EXPECT_EQ(heightAboveWorkArea(fullHd, {QRect(0, 541, 1920, 539)}), 0);
    EXPECT_EQ(heightAboveWorkArea(fullHd, {QRect(0, 32, 900, 1048)}), 0);
    EXPECT_EQ(heightAboveWorkArea(fullHd, {QRect(5000, 32, 1920, 1048)}), 0);
    EXPECT_EQ(heightAboveWorkArea(fullHd, {QRect(0, 0, 65535, 65535)}), 0);
    EXPECT_EQ(heightAboveWorkArea(QRect(0, 200, 1, 1080), {}), 0);
}

TEST(ReservedByDocks, IsAWorkAreaThatBeginsAtADocksLowerEdge) {
    const TopDock panel{QRect(0, 0, 1920, 30), {30, 0, 1919}};
    EXPECT_TRUE(isReservedByDocks(fullHd, {QRect(0, 30, 1920, 1050)}, {panel}));
    EXPECT_FALSE(isReservedByDocks(fullHd, {QRect(0, 32, 1920, 1048)}, {panel}));
    EXPECT_FALSE(isReservedByDocks(fullHd, {QRect(0, 30, 1920, 1050)}, {}));
}

TEST(ReservedByDocks, IsNoneByADockOfAnotherScreenWhereEachHasItsWorkArea) {
    const TopDock panel{QRect(1920, 0, 1280, 30), {30, 1920, 3199}};
    const std::vector<QRect> areas{QRect(0, 30, 1920, 1050), QRect(1920, 30, 1280, 994)};
    EXPECT_FALSE(isReservedByDocks(fullHd, areas, {panel}));
    EXPECT_TRUE(isReservedByDocks(rightOfIt, areas, {panel}));
}

TEST(ReservedByDocks, IsTheWorkAreaOfAllScreensByADockOfAnyScreen) {
    const TopDock panel{QRect(1920, 0, 1280, 30), {30, 1920, 3199}};
    EXPECT_TRUE(isReservedByDocks(fullHd, {QRect(0, 30, 3200, 1050)}, {panel}));
    EXPECT_FALSE(isReservedByDocks(fullHd, {QRect(0, 40, 3200, 1040)}, {panel}));
}

class TopStripTest : public ::testing::Test {
protected:
    /// A measurement while the bar has never reserved anything.
    void measureAtStart(int height, bool isReservedByDocks = false) {
        strip.beginMeasurement(0);
        strip.measure({height, isReservedByDocks}, false);
        ASSERT_FALSE(strip.isMeasuring());
    }
    TopStrip strip;
};

TEST_F(TopStripTest, HasNoHeightWhereNothingElseIsReserved) {
    measureAtStart(0);
    EXPECT_EQ(strip.height(), 0);
    EXPECT_FALSE(strip.asDock(fullHd).has_value());
}

TEST_F(TopStripTest, IsWhatIsReservedWithoutADock) {
    measureAtStart(32);
    EXPECT_EQ(strip.height(), 32);
}

TEST_F(TopStripTest, IsLikeADockOverTheWidthOfItsScreen) {
    measureAtStart(32);
    const QRect screen(1920, 100, 1280, 1024);
    const std::optional<TopDock> dock = strip.asDock(screen);
    ASSERT_TRUE(dock.has_value());
    EXPECT_EQ(dock->window, QRect(1920, 100, 1280, 32));
    EXPECT_EQ(dock->strut, (TopStrut{132, 1920, 3199}));
    EXPECT_EQ(freeOffset(screen, 22, {*dock}), 32);
}

TEST_F(TopStripTest, IsNotWhatDocksReserve) {
    measureAtStart(30, true);
    EXPECT_EQ(strip.height(), 0);
}

TEST_F(TopStripTest, StaysBehindADockThatComesBelowIt) {
    measureAtStart(32);
    strip.beginMeasurement(54);
    strip.measure({60, true}, false);
    EXPECT_EQ(strip.height(), 32);
    strip.beginMeasurement(54);
    strip.measure({20, true}, false);
    EXPECT_EQ(strip.height(), 20);
}

TEST_F(TopStripTest, IsNotTheEchoOfWhatTheBarReserved) {
    measureAtStart(0);
    strip.beginMeasurement(22);
    strip.measure({22}, false);
    EXPECT_TRUE(strip.isMeasuring());
    strip.measure({0}, false);
    EXPECT_FALSE(strip.isMeasuring());
    EXPECT_EQ(strip.height(), 0);
}

TEST_F(TopStripTest, KeepsItsHeightWhenTheWindowManagerOnlyEchoes) {
    measureAtStart(32);
    strip.beginMeasurement(54);
    strip.measure({54}, false);
    strip.measure({53}, true); // a pixel less by rounding
    EXPECT_FALSE(strip.isMeasuring());
    EXPECT_EQ(strip.height(), 32);
}

TEST_F(TopStripTest, RemembersTheEchoWhenAMeasurementBeginsAnew) {
    measureAtStart(0);
    strip.beginMeasurement(22);
    strip.beginMeasurement(0);
    strip.measure({22}, false);
    EXPECT_TRUE(strip.isMeasuring());
}

TEST_F(TopStripTest, HasTheNewHeightOfAPanelThatHasGrownOrGone) {
    measureAtStart(32);
    strip.beginMeasurement(54);
    strip.measure({64}, false);
    EXPECT_EQ(strip.height(), 64);
    strip.beginMeasurement(86);
    strip.measure({0}, false);
    EXPECT_EQ(strip.height(), 0);
}

TEST_F(TopStripTest, IsNotRefutedByAnythingFromItsHeightToTheBarsLowerEdge) {
    measureAtStart(32);
    for (const int height : {32, 40, 54})
        EXPECT_FALSE(strip.isRefutedBy({height}, 54)) << height;
    EXPECT_FALSE(strip.isRefutedBy({32}, 0));
}

TEST_F(TopStripTest, IsRefutedByMoreThanTheBarReservesAndByLessThanItsHeight) {
    measureAtStart(32);
    EXPECT_TRUE(strip.isRefutedBy({64}, 54));
    EXPECT_TRUE(strip.isRefutedBy({0}, 54));
}

TEST_F(TopStripTest, IsNotRefutedByADockBelowTheBar) {
    measureAtStart(0);
    EXPECT_FALSE(strip.isRefutedBy({52, true}, 22));
}

TEST_F(TopStripTest, IsRefutedOnlyOnceByAWindowManagerThatCountsInItsOwnWay) {
    measureAtStart(0);
    ASSERT_TRUE(strip.isRefutedBy({88}, 44));
    strip.beginMeasurement(44, 88);
    strip.measure({0}, false);
    EXPECT_FALSE(strip.isRefutedBy({88}, 44));
    EXPECT_TRUE(strip.isRefutedBy({90}, 44));
    strip.beginMeasurement(44); // for another reason
    strip.measure({0}, false);
    EXPECT_TRUE(strip.isRefutedBy({88}, 44));
}

} // namespace
} // namespace orvelle
