#include "windows/settings/color_parts.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace orvelle {
namespace {

/// A colour for each step of an odd number through all of them: some hundred thousand, of every hue and
/// depth.
template <class Check>
void forColorsOfEveryKind(Check check) {
    for (QRgb rgb = 0; rgb <= 0xFFFFFF && !::testing::Test::HasFailure(); rgb += 307)
        check(QColor(rgb));
}

TEST(ColorPartsTest, GiveBackTheColourThatTheyAreThePartsOf) {
    forColorsOfEveryKind([](const QColor& color) {
        EXPECT_EQ(colorOfParts(colorParts(color, 0.5)), color) << color.name().toStdString();
    });
}

TEST(ColorPartsTest, AreKnownOfThePureColours) {
    const QList<QColor> pureColors{Qt::red, Qt::yellow, Qt::green, Qt::cyan, Qt::blue, Qt::magenta};
    for (qsizetype index = 0; index < pureColors.size(); ++index) {
        const ColorParts parts = colorParts(pureColors[index], 0);
        EXPECT_DOUBLE_EQ(parts.hue, static_cast<double>(index) / 6);
        EXPECT_EQ(parts.saturation, 1);
        EXPECT_EQ(parts.brightness, 1);
    }
    const ColorParts sky = colorParts(QColor(51, 102, 204), 0);
    EXPECT_DOUBLE_EQ(sky.hue, (4 - 1.0 / 3) / 6);
    EXPECT_DOUBLE_EQ(sky.saturation, 0.75);
    EXPECT_DOUBLE_EQ(sky.brightness, 0.8);
}

TEST(ColorPartsTest, TakeTheHueOfAGreyFromOutside) {
    for (int depth = 0; depth <= 255; ++depth) {
        const ColorParts parts = colorParts(QColor(depth, depth, depth), 0.7);
        EXPECT_EQ(parts.hue, 0.7);
        EXPECT_EQ(parts.saturation, 0);
        EXPECT_EQ(parts.brightness, depth / 255.0);
    }
}

TEST(ColorPartsTest, KeepTheStrongestAndTheWeakestComponentUnderEveryHue) {
    forColorsOfEveryKind([](const QColor& color) {
        ColorParts parts = colorParts(color, 0);
        const auto before = std::minmax({color.red(), color.green(), color.blue()});
        for (parts.hue = 0; parts.hue <= 1; parts.hue += 0.13) {
            const QColor turned = colorOfParts(parts);
            EXPECT_EQ(std::minmax({turned.red(), turned.green(), turned.blue()}), before)
                << color.name().toStdString() << " at " << parts.hue;
        }
    });
}

TEST(ColorPartsTest, EndTheCircleOfHuesWhereItBegins) {
    EXPECT_EQ(colorOfParts({.hue = 1, .saturation = 1, .brightness = 1}), QColor(255, 0, 0));
    EXPECT_EQ(colorOfParts({.hue = 0, .saturation = 1, .brightness = 1}), QColor(255, 0, 0));
}

TEST(ColorPartsTest, AreRoundedToTheNearestColour) {
    EXPECT_EQ(colorOfParts({.hue = 0, .saturation = 0.5, .brightness = 1}), QColor(255, 128, 128));
    EXPECT_EQ(colorOfParts({.hue = 1.0 / 12, .saturation = 1, .brightness = 0.999}), QColor(255, 127, 0));
}

} // namespace
} // namespace orvelle
