#include "charts/glow.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>

namespace orvelle {
namespace {

QImage clear(int width, int height) {
    QImage image(width, height, QImage::Format_Alpha8);
    image.fill(0);
    return image;
}

int at(const QImage& image, int x, int y) {
    return image.constScanLine(y)[x];
}

/// A white square of `side` pixels in the middle of a clear image.
QImage whiteSquare(int imageSide, int side) {
    QImage image = clear(imageSide, imageSide);
    const int start = (imageSide - side) / 2;
    for (int y = start; y < start + side; ++y)
        std::fill_n(image.scanLine(y) + start, side, 255);
    return image;
}

double massOf(const QImage& image) {
    double mass = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            mass += at(image, x, y);
    }
    return mass;
}

/// The variance along x of how the opacity is spread about the middle of the image.
double varianceOf(const QImage& image) {
    const double middle = (image.width() - 1) / 2.0;
    double sum = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            sum += at(image, x, y) * (x - middle) * (x - middle);
    }
    return sum / massOf(image);
}

class BlurOfSigma : public ::testing::TestWithParam<double> {};

INSTANTIATE_TEST_SUITE_P(, BlurOfSigma, ::testing::Values(0.5, 1.0, 1.5, 2.0, 3.0, 4.0, 6.0, 8.0));

TEST_P(BlurOfSigma, KeepsTheMass) {
    const QImage image = whiteSquare(101, 41);
    EXPECT_NEAR(massOf(blurredAlpha(image, GetParam())) / massOf(image), 1, 0.002);
}

TEST_P(BlurOfSigma, AddsTheVarianceOfAGaussian) {
    const QImage image = whiteSquare(121, 41);
    const double added = varianceOf(blurredAlpha(image, GetParam())) - varianceOf(image);
    EXPECT_NEAR(added, GetParam() * GetParam(), 0.01 * GetParam() * GetParam() + 0.3);
}

TEST_P(BlurOfSigma, IsSymmetric) {
    const QImage blurred = blurredAlpha(whiteSquare(101, 15), GetParam());
    for (int y = 0; y < 101; ++y) {
        for (int x = 0; x < 101; ++x) {
            EXPECT_EQ(at(blurred, x, y), at(blurred, 100 - x, y));
            EXPECT_EQ(at(blurred, x, y), at(blurred, x, 100 - y));
            EXPECT_NEAR(at(blurred, x, y), at(blurred, y, x), 1);
        }
    }
}

/// Below one pixel the pixels' own width dominates the shape of an edge.
class BlurOfAPixelOrMore : public BlurOfSigma {};

INSTANTIATE_TEST_SUITE_P(, BlurOfAPixelOrMore, ::testing::Values(1.0, 1.5, 2.0, 3.0, 4.0, 6.0, 8.0));

TEST_P(BlurOfAPixelOrMore, SpreadsAnEdgeLikeTheGaussianIntegral) {
    const double sigma = GetParam();
    QImage image = clear(160, 160);
    for (int y = 0; y < 160; ++y)
        std::fill_n(image.scanLine(y) + 80, 80, 255);
    const QImage blurred = blurredAlpha(image, sigma);
    for (int x = 50; x < 110; ++x) {
        const double distance = x + 0.5 - 80;
        const double expected = 255 * 0.5 * (1 + std::erf(distance / (sigma * std::numbers::sqrt2)));
        EXPECT_NEAR(at(blurred, x, 80), expected, 6) << x;
    }
}

TEST_P(BlurOfSigma, SpreadsNothingFartherThanThreeSigma) {
    const int reach = static_cast<int>(std::ceil(GetParam() * 3)) + 3;
    const QImage blurred = blurredAlpha(whiteSquare(101, 31), GetParam());
    for (int x = 0; x < 35 - reach; ++x)
        EXPECT_EQ(at(blurred, x, 50), 0) << x;
}

TEST(Blur, LeavesTheImageUnchangedWithoutASigma) {
    const QImage image = whiteSquare(11, 3);
    EXPECT_EQ(blurredAlpha(image, 0), image);
    EXPECT_EQ(blurredAlpha(image, -1), image);
    EXPECT_EQ(blurredAlpha(image, std::numeric_limits<double>::quiet_NaN()), image);
    EXPECT_EQ(blurredAlpha(image, std::numeric_limits<double>::infinity()), image);
}

TEST(Blur, SurvivesImagesSmallerThanItsReach) {
    EXPECT_TRUE(blurredAlpha(QImage(), 4).isNull());
    EXPECT_EQ(blurredAlpha(whiteSquare(1, 1), 50).size(), QSize(1, 1));
    EXPECT_EQ(blurredAlpha(whiteSquare(3, 1), 1e9).size(), QSize(3, 3));
}

TEST(Glow, GrowsWithItsIntensity) {
    EXPECT_EQ(glowOpacity(GlowIntensity::none), 0);
    EXPECT_EQ(glowOpacity(GlowIntensity::subtle), 0.3);
    EXPECT_EQ(glowOpacity(GlowIntensity::medium), 0.5);
    EXPECT_EQ(glowOpacity(GlowIntensity::intense), 0.8);
    EXPECT_EQ(glowRadius(GlowIntensity::none), 0);
    EXPECT_EQ(glowRadius(GlowIntensity::subtle), 2);
    EXPECT_EQ(glowRadius(GlowIntensity::medium), 4);
    EXPECT_EQ(glowRadius(GlowIntensity::intense), 8);
}

TEST(Glow, ReachesAtLeastAsFarAsItsBlur) {
    for (const double radius : {1.0, 2.0, 4.0, 8.0}) {
        for (const double pixelsPerPoint : {1.0, 1.25, 1.5, 2.0, 3.0}) {
            const int start = (201 - 31) / 2;
            const int reach = static_cast<int>(glowReach(radius) * pixelsPerPoint) + 2;
            const QImage blurred = blurredAlpha(whiteSquare(201, 31), radius / 2 * pixelsPerPoint);
            EXPECT_GT(at(blurred, start - 1, 100), 0);
            for (int x = 0; x < start - reach; ++x)
                EXPECT_EQ(at(blurred, x, 100), 0)
                    << radius << " points, " << pixelsPerPoint << " pixels a point";
        }
    }
}

} // namespace
} // namespace orvelle
