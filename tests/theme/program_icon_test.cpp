#include "theme/program_icon.h"

#include <QPixmap>
#include <gtest/gtest.h>

namespace orvelle {
namespace {

TEST(ProgramIconTest, IsThereInEverySizeThatWindowManagersUse) {
    const QIcon icon = programIcon();
    for (const int side : {16, 24, 32, 48, 64, 128})
        EXPECT_TRUE(icon.availableSizes().contains(QSize(side, side))) << side;
}

TEST(ProgramIconTest, ShowsItsThreeBarsApartEvenInSixteenPixels) {
    const QImage picture = programIcon().pixmap(QSize(16, 16)).toImage();
    EXPECT_EQ(picture.pixelColor(0, 0).alpha(), 0) << "rounded";
    const auto brightness = [&](int x) { return picture.pixelColor(x, 10).value(); };
    for (const int bar : {3, 7, 11}) {
        EXPECT_GT(brightness(bar), 200) << bar;
        EXPECT_GT(brightness(bar + 1), 200) << bar;
    }
    for (const int gap : {2, 5, 6, 9, 10, 13})
        EXPECT_LT(brightness(gap), 100) << gap;
}

} // namespace
} // namespace orvelle
