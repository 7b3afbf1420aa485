#include "picture_comparison.h"

#include <gtest/gtest.h>

namespace orvelle {
namespace {

QImage greyPicture(int grey = 100) {
    QImage picture(8, 6, QImage::Format_RGB32);
    picture.fill(qRgb(grey, grey, grey));
    return picture;
}

TEST(Comparison, OfAPictureWithItselfFindsNothing) {
    const PictureDifference difference = compare(greyPicture(), greyPicture());
    EXPECT_TRUE(difference.isNone());
    EXPECT_EQ(difference.largest, 0);
}

TEST(Comparison, ToleratesRoundingInEveryPixel) {
    const PictureDifference difference = compare(greyPicture(100 + componentTolerance), greyPicture());
    EXPECT_TRUE(difference.isNone());
    EXPECT_EQ(difference.largest, componentTolerance);
}

TEST(Comparison, FindsASinglePixelThatIsOneStepBeyondTheTolerance) {
    for (const QRgb color : {qRgb(107, 100, 100), qRgb(100, 93, 100), qRgb(100, 100, 107)}) {
        QImage actual = greyPicture();
        actual.setPixel(5, 2, color);
        const PictureDifference difference = compare(actual, greyPicture());
        EXPECT_EQ(difference.pixelCount, 1);
        EXPECT_EQ(difference.area, QRect(5, 2, 1, 1));
        EXPECT_EQ(difference.largest, 7);
        EXPECT_FALSE(difference.isNone());
    }
}

TEST(Comparison, FindsAnotherSize) {
    EXPECT_FALSE(compare(greyPicture().copy(0, 0, 8, 5), greyPicture()).isNone());
    EXPECT_FALSE(compare(greyPicture(), QImage()).isNone());
}

TEST(DifferencePicture, IsRedWhereThePicturesDifferAndPaleElsewhere) {
    QImage actual = greyPicture();
    actual.setPixel(5, 2, qRgb(255, 255, 255));
    const QImage picture = differencePicture(actual, greyPicture());
    EXPECT_EQ(picture.pixel(5, 2), qRgb(255, 0, 0));
    EXPECT_EQ(picture.pixelColor(4, 2).red(), picture.pixelColor(4, 2).blue());
    EXPECT_GT(picture.pixelColor(4, 2).red(), 200);
}

} // namespace
} // namespace orvelle
