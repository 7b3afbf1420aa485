#include "shell/painted/window_frame.h"

#include <gtest/gtest.h>

namespace orvelle {
namespace {

constexpr QSize smallest{340, 240};
const QRect roomBelowTheBar(0, 22, 1280, 778);

TEST(WindowFrameTest, IsReadAsItIsWritten) {
    for (const QRect& frame : {QRect(10, 20, 460, 640), QRect(-1500, -3, 1, 1)})
        EXPECT_EQ(parseFrame(frameText(frame)), frame);
    EXPECT_EQ(frameText({10, -20, 460, 640}), QStringLiteral("10 -20 460 640"));
}

TEST(WindowFrameTest, IsNothingWhenTheTextIsNonsense) {
    for (const char* text :
         {"", " ", "1 2 3", "1 2 3 4 5", "1 2 0 4", "1 2 3 -4", "a b c d", "1,2,3,4", "1 2 3 99999999999",
          "40000 0 460 640", "nan 0 460 640", "1.5 2 460 640", "1  2 460 640"})
        EXPECT_EQ(parseFrame(QString::fromLatin1(text)), std::nullopt) << text;
    EXPECT_EQ(parseFrame(QString(1 << 20, u'1')), std::nullopt);
}

TEST(WindowFrameTest, StaysWhereItFits) {
    const QRect frame(400, 100, 460, 640);
    EXPECT_EQ(frameOnScreens(frame, {roomBelowTheBar}, smallest), frame);
    EXPECT_EQ(frameOnScreens(frame, {}, smallest), frame);
}

TEST(WindowFrameTest, IsMovedOntoAScreenThatIsStillThere) {
    EXPECT_EQ(frameOnScreens({2000, 100, 460, 640}, {roomBelowTheBar}, smallest), QRect(812, 100, 460, 640));
    EXPECT_EQ(frameOnScreens({-900, -900, 460, 640}, {roomBelowTheBar}, smallest), QRect(0, 22, 460, 640));
    EXPECT_EQ(frameOnScreens({1200, 700, 460, 640}, {roomBelowTheBar}, smallest), QRect(812, 120, 460, 640));
}

TEST(WindowFrameTest, GoesToTheScreenThatShowsMostOfIt) {
    const QRect right(1280, 0, 1920, 1080);
    EXPECT_EQ(frameOnScreens({1100, 100, 460, 640}, {roomBelowTheBar, right}, smallest),
              QRect(1280, 100, 460, 640));
    EXPECT_EQ(frameOnScreens({900, 100, 460, 640}, {roomBelowTheBar, right}, smallest),
              QRect(812, 100, 460, 640));
}

TEST(WindowFrameTest, IsNoLargerThanItsScreenAndNoSmallerThanAllowed) {
    EXPECT_EQ(frameOnScreens({0, 22, 5000, 5000}, {roomBelowTheBar}, smallest), QRect(0, 22, 1272, 738));
    EXPECT_EQ(frameOnScreens({5, 30, 10, 10}, {roomBelowTheBar}, smallest).size(), smallest);
    const QRect tiny(0, 0, 200, 100);
    EXPECT_EQ(frameOnScreens({50, 50, 460, 640}, {tiny}, smallest), QRect({0, 0}, smallest))
        << "its title bar can be reached";
}

TEST(WindowFrameTest, IsCentredOnAScreen) {
    EXPECT_EQ(centredFrame({460, 640}, roomBelowTheBar), QRect(410, 91, 460, 640));
    EXPECT_EQ(centredFrame({5000, 100}, roomBelowTheBar).width(), roomBelowTheBar.width());
}

} // namespace
} // namespace orvelle
