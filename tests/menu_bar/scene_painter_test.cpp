#include "menu_bar/menu_bar_item.h"
#include "menu_bar/scene_layout.h"
#include "menu_bar/scene_painter.h"
#include "support/pixels.h"
#include "theme/fonts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace orvelle {
namespace {

/// A full bar with square corners, so its edges are exact to the pixel.
SceneNode block(double width, double height, const QColor& color = Qt::red) {
    return levelBarNode({width, height}, 0, 1, color, false);
}

SceneNode text(const QString& letters) {
    return textNode(letters, systemFont(11), QColor(Qt::white));
}

QImage painted(const SceneNode& scene, const QSizeF& place, double ratio = 1) {
    return paintedImage(place, ratio, [&](QPainter& painter) {
        paintScene(painter, {{0, 0}, place}, scene, BarAppearance::dark);
    });
}

QImage paintedOn(BarAppearance appearance, const SceneNode& scene) {
    return paintedImage({60, 22}, 1,
                        [&](QPainter& painter) { paintScene(painter, {0, 0, 60, 22}, scene, appearance); });
}

/// The painted colours as they are stored, which is multiplied by their opacity.
std::set<QRgb> colorsOf(const QImage& image) {
    std::set<QRgb> colors;
    for (int y = 0; y < image.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        colors.insert(line, line + image.width());
    }
    return colors;
}
bool isShadeOfWhite(QRgb color) {
    return qRed(color) == qAlpha(color) && qGreen(color) == qAlpha(color) && qBlue(color) == qAlpha(color);
}
bool isShadeOfBlack(QRgb color) {
    return (color & 0xffffffU) == 0;
}

/// The area in which one colour channel dominates, in pixels.
QRect rectOf(const QImage& image, int (*channel)(QRgb)) {
    QRect found;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            const bool prevails = channel(pixel) > (qRed(pixel) + qGreen(pixel) + qBlue(pixel)) / 2;
            if (prevails && qAlpha(pixel) > 200)
                found |= QRect(x, y, 1, 1);
        }
    }
    return found;
}
QRect redIn(const QImage& image) {
    return rectOf(image, &qRed);
}
QRect blueIn(const QImage& image) {
    return rectOf(image, &qBlue);
}

TEST(ScenePainterTest, ARowIsAsWideAsItsPartsAndGapsAndAsHighAsTheHighest) {
    const Extent words = extentOf(text(QStringLiteral("12%")));
    const Extent whole = extentOf(row({block(12, 12), text(QStringLiteral("12%"))}, 3));
    EXPECT_EQ(whole.size, QSizeF(15 + words.size.width(), std::max(12.0, words.size.height())));
    EXPECT_EQ(whole.rigidWidth, 15);
}

TEST(ScenePainterTest, ARowIsCentredInItsPlaceAndItsPartsInItsHeight) {
    const QImage image = painted(row({block(12, 12), block(20, 10, Qt::blue)}, 2), {60, 22});
    EXPECT_EQ(redIn(image), QRect(13, 5, 12, 12));
    EXPECT_EQ(blueIn(image), QRect(27, 6, 20, 10));
}

TEST(ScenePainterTest, PartsStartOnWholeDevicePixels) {
    const QImage image = painted(row({block(12.3, 11), block(20, 10, Qt::blue)}, 2), {61, 22}, 1.5);
    EXPECT_EQ(blueIn(image).size(), QSize(30, 15)) << "no edge lies between two pixels";
}

TEST(ScenePainterTest, LabelsTracksAndOutlinesAreWhiteOnADarkBarAndBlackOnALightOne) {
    for (const SceneNode& scene : {textNode(QStringLiteral("42%"), systemFont(11), primaryLabel),
                                   textNode(QStringLiteral("--"), systemFont(11), secondaryLabel),
                                   levelBarNode({40, 8}, 0, 0, Qt::red, false),
                                   SceneNode{BatteryShape{.charge = 0, .color = Qt::red}}}) {
        const QImage onDark = paintedOn(BarAppearance::dark, scene);
        const QImage onLight = paintedOn(BarAppearance::light, scene);
        EXPECT_TRUE(std::ranges::all_of(colorsOf(onDark), &isShadeOfWhite));
        EXPECT_TRUE(std::ranges::all_of(colorsOf(onLight), &isShadeOfBlack));
        EXPECT_GT(coveredArea(onLight), 0);
        EXPECT_NEAR(coveredArea(onDark), coveredArea(onLight), 1e-9) << "at the same opacity";
    }
}

TEST(ScenePainterTest, OtherColoursAreTheSameOnEveryBar) {
    const SceneNode scene =
        row({textNode(QStringLiteral("42°"), systemFont(11), QColor(Qt::green)),
             symbolNode(QStringLiteral("cpu"), 10, Qt::blue), dotsNode({Qt::white, Qt::red})},
            2);
    EXPECT_EQ(paintedOn(BarAppearance::light, scene), paintedOn(BarAppearance::dark, scene));
}

TEST(ScenePainterTest, AColumnStacksItsPartsCentredOrAtTheTrailingEdge) {
    const auto stack = [](ColumnAlignment alignment) {
        return column({block(20, 7), block(10, 4, Qt::blue)}, 1, alignment);
    };
    EXPECT_EQ(extentOf(stack(ColumnAlignment::center)).size, QSizeF(20, 12));
    const QImage centred = painted(stack(ColumnAlignment::center), {20, 12});
    EXPECT_EQ(redIn(centred), QRect(0, 0, 20, 7));
    EXPECT_EQ(blueIn(centred), QRect(5, 8, 10, 4));
    EXPECT_EQ(blueIn(painted(stack(ColumnAlignment::trailing), {20, 12})), QRect(10, 8, 10, 4));
}

TEST(ScenePainterTest, TextIsCondensedWhenARowDoesNotFit) {
    const SceneNode words = text(QStringLiteral("HHHH"));
    const double width = 42 + extentOf(words).size.width();
    const QImage fitting = painted(row({block(40, 12), words}, 2), {width, 22});
    const QImage tight = painted(row({block(40, 12), words}, 2), {width - 6, 22});
    EXPECT_EQ(redIn(tight).size(), QSize(40, 12)) << "what is no text keeps its width";
    EXPECT_NEAR(paintedRect(tight).right(), paintedRect(fitting).right() - 6, 1);
}

TEST(ScenePainterTest, TextWithinColumnsIsCondensedToo) {
    const SceneNode rates = column({row({block(7, 7), text(QStringLiteral("HHHHHH"))}, 1),
                                    row({block(7, 7), text(QStringLiteral("H"))}, 1)},
                                   0, ColumnAlignment::trailing);
    EXPECT_EQ(extentOf(rates).rigidWidth, 8);
    const double width = extentOf(rates).size.width() + 32 - 6;
    const QImage image = painted(row({rates, block(30, 14, Qt::blue)}, 2), {width, 40});
    EXPECT_EQ(blueIn(image).width(), 30) << "the long line gives way";
}

TEST(ScenePainterTest, AFarTooWideSceneIsScaledDown) {
    const QImage image = painted(row({block(60, 12), block(18, 10, Qt::blue)}, 2), {40, 22});
    EXPECT_NEAR(redIn(image).width(), 30, 1);
    EXPECT_NEAR(blueIn(image).right() + 1, 40, 1);
}

TEST(ScenePainterTest, ASlightlyTooWideSceneMovesItsPartsTogether) {
    const QImage two = painted(row({block(12, 12), block(46, 4, Qt::blue)}, 3), {60, 22});
    EXPECT_EQ(redIn(two), QRect(0, 5, 12, 12));
    EXPECT_EQ(blueIn(two), QRect(14, 9, 46, 4));
    const QImage three =
        painted(row({block(12, 12), block(24, 4, Qt::blue), block(21, 4, Qt::green)}, 2), {60, 22}, 2);
    EXPECT_EQ(redIn(three), QRect(0, 10, 24, 24));
    EXPECT_EQ(blueIn(three), QRect(27, 18, 48, 8));
}

TEST(ScenePainterTest, ASceneTwoPointsTooWideIsScaledDown) {
    const QImage image = painted(row({block(12, 12), block(47, 4, Qt::blue)}, 3), {60, 22});
    EXPECT_LT(redIn(image).width(), 12);
}

TEST(ScenePainterTest, ASlightlyTooHighSceneIsNotScaledDown) {
    EXPECT_EQ(redIn(painted(block(20, 23), {40, 22})).size(), QSize(20, 22));
}

TEST(ScenePainterTest, ATooHighSceneIsScaledDown) {
    EXPECT_EQ(redIn(painted(block(20, 44), {40, 22})), QRect(15, 0, 10, 22));
}

TEST(ScenePainterTest, NothingIsPaintedWithoutRoomOrContent) {
    EXPECT_TRUE(paintedRect(painted(SceneNode{}, {40, 22})).isEmpty());
    EXPECT_TRUE(paintedRect(painted(row({}, 2), {40, 22})).isEmpty());
    const QImage image = paintedImage(
        {4, 4}, 1, [](QPainter& painter) { paintScene(painter, {}, block(20, 10), BarAppearance::dark); });
    EXPECT_TRUE(paintedRect(image).isEmpty());
}

} // namespace
} // namespace orvelle
