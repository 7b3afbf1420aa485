#include "windows/settings/color_conversion.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace orvelle {
namespace {

/// Calls `check` with some fifty thousand colours of every hue and depth.
template <class Check>
void forColorsOfEveryKind(Check check) {
    for (QRgb rgb = 0; rgb <= 0xFFFFFF && !::testing::Test::HasFailure(); rgb += 307)
        check(QColor(rgb));
}

QColor restored(const QColor& color) {
    const HSBColor hsb = ColorConversion::hsbFromColor(color, 0.5);
    return ColorConversion::colorFromHSB(hsb.hue, hsb.saturation, hsb.brightness);
}

TEST(ColorConversionTest, RestoresEveryColor) {
    forColorsOfEveryKind(
        [](const QColor& color) { EXPECT_EQ(restored(color), color) << color.name().toStdString(); });
}

TEST(ColorConversionTest, KnowsThePureColors) {
    const QList<QColor> pureColors{Qt::red, Qt::yellow, Qt::green, Qt::cyan, Qt::blue, Qt::magenta};
    for (qsizetype index = 0; index < pureColors.size(); ++index) {
        const HSBColor hsb = ColorConversion::hsbFromColor(pureColors[index], 0);
        EXPECT_DOUBLE_EQ(hsb.hue, static_cast<double>(index) / 6);
        EXPECT_EQ(hsb.saturation, 1);
        EXPECT_EQ(hsb.brightness, 1);
    }
    const HSBColor sky = ColorConversion::hsbFromColor(QColor(51, 102, 204), 0);
    EXPECT_DOUBLE_EQ(sky.hue, (4 - 1.0 / 3) / 6);
    EXPECT_DOUBLE_EQ(sky.saturation, 0.75);
    EXPECT_DOUBLE_EQ(sky.brightness, 0.8);
}

TEST(ColorConversionTest, GivesAGrayTheHueFromOutside) {
    for (int depth = 0; depth <= 255; ++depth) {
        const HSBColor hsb = ColorConversion::hsbFromColor(QColor(depth, depth, depth), 0.7);
        EXPECT_EQ(hsb.hue, 0.7);
        EXPECT_EQ(hsb.saturation, 0);
        EXPECT_EQ(hsb.brightness, depth / 255.0);
    }
}

TEST(ColorConversionTest, KeepsTheLargestAndTheSmallestComponentForEveryHue) {
    forColorsOfEveryKind([](const QColor& color) {
        HSBColor hsb = ColorConversion::hsbFromColor(color, 0);
        const auto before = std::minmax({color.red(), color.green(), color.blue()});
        for (hsb.hue = 0; hsb.hue <= 1; hsb.hue += 0.13) {
            const QColor turned = ColorConversion::colorFromHSB(hsb.hue, hsb.saturation, hsb.brightness);
            EXPECT_EQ(std::minmax({turned.red(), turned.green(), turned.blue()}), before)
                << color.name().toStdString() << " at " << hsb.hue;
        }
    });
}

TEST(ColorConversionTest, ClosesTheHueCircle) {
    EXPECT_EQ(ColorConversion::colorFromHSB(1, 1, 1), QColor(255, 0, 0));
    EXPECT_EQ(ColorConversion::colorFromHSB(0, 1, 1), QColor(255, 0, 0));
}

TEST(ColorConversionTest, RoundsToTheNearestColor) {
    EXPECT_EQ(ColorConversion::colorFromHSB(0, 0.5, 1), QColor(255, 128, 128));
    EXPECT_EQ(ColorConversion::colorFromHSB(1.0 / 12, 1, 0.999), QColor(255, 127, 0));
}

TEST(ColorConversionTest, FallsBackToAnOpaqueColor) {
    using namespace Qt::StringLiterals;
    EXPECT_EQ(ColorConversion::colorFromHex(u"#FF8000"_s, Qt::red), QColor(255, 128, 0));
    EXPECT_EQ(ColorConversion::colorFromHex(u"nonsense"_s, QColor(1, 2, 3, 4)), QColor(1, 2, 3));
    EXPECT_EQ(ColorConversion::hexFromColor(QColor(255, 128, 0)), u"#FF8000"_s);
}

} // namespace
} // namespace orvelle
