#include "support/pixels.h"
#include "theme/symbols.h"

#include <QPixmap>
#include <gtest/gtest.h>

#include <limits>

namespace orvelle {
namespace {

const QColor tint = QColor(10, 200, 30);

class SymbolNames : public ::testing::TestWithParam<const char*> {};

TEST_P(SymbolNames, HasAPictureInTheRequestedColor) {
    const QString name = QString::fromLatin1(GetParam());
    EXPECT_TRUE(isKnownSymbol(name));
    const QImage image = symbolImage(name, 24, tint, 2);
    ASSERT_FALSE(image.isNull());
    EXPECT_GT(countPixels(image, tint), 100) << "solid areas have exactly the color";
    EXPECT_EQ(image.pixelColor(0, 0).alpha(), 0) << "the corner is empty";
}

INSTANTIATE_TEST_SUITE_P(All, SymbolNames,
                         ::testing::Values("cpu", "memorychip", "network", "internaldrive", "externaldrive",
                                           "battery.100", "bolt.fill", "bolt", "powerplug", "powerplug.fill",
                                           "thermometer", "thermometer.medium", "arrow.up", "arrow.down",
                                           "arrow.up.circle.fill", "arrow.down.circle.fill", "gearshape",
                                           "gearshape.fill", "wifi", "cable.connector", "fan", "power",
                                           "chevron.right", "chevron.down", "chart.bar.fill",
                                           "textformat.size", "text.badge.star", "waveform.path",
                                           "circle.grid.2x1.fill"));

TEST(Symbols, AreOnePointTwoTimesTheFontSizeInWholeDevicePixels) {
    EXPECT_EQ(symbolImage(u"cpu", 10, tint, 1).size(), QSize(12, 12));
    EXPECT_EQ(symbolImage(u"cpu", 10, tint, 1.5).size(), QSize(18, 18));
    EXPECT_EQ(symbolImage(u"cpu", 10, tint, 2).size(), QSize(24, 24));
    EXPECT_EQ(symbolImage(u"cpu", 10, tint, 2).devicePixelRatio(), 2);
    EXPECT_EQ(symbolImage(u"cpu", 6, tint, 1).size(), QSize(7, 7));
}

TEST(Symbols, AreLaidOutInSquaresAsHighAsALineOfText) {
    EXPECT_EQ(symbolSize(u"cpu", 10), QSizeF(12, 12));
    EXPECT_EQ(symbolSize(u"memorychip", 20, QFont::Bold), QSizeF(24, 24));
    EXPECT_EQ(symbolSize(u"no.such.symbol", 10), QSizeF(12, 12));
    EXPECT_EQ(symbolSize(u"cpu", 0), QSizeF(0, 0));
}

TEST(Symbols, StayTranslucentInATranslucentColor) {
    const QImage image = symbolImage(u"bolt.fill", 20, QColor(255, 0, 0, 102), 1);
    EXPECT_EQ(image.pixelColor(image.rect().center()).alpha(), 102);
}

TEST(Symbols, CoverMoreInAHeavierWeight) {
    const double normal = coveredArea(symbolImage(u"power", 14, tint, 2));
    const double bold = coveredArea(symbolImage(u"power", 14, tint, 2, QFont::Bold));
    EXPECT_GT(bold, normal * 1.2);
}

TEST(Symbols, ReturnTheCachedImageWhenRequestedAgain) {
    const QImage first = symbolImage(u"wifi", 11, tint, 1);
    EXPECT_EQ(symbolImage(u"wifi", 11, tint, 1).cacheKey(), first.cacheKey());
    EXPECT_NE(symbolImage(u"wifi", 11, QColor(Qt::white), 1).cacheKey(), first.cacheKey());
    EXPECT_NE(symbolImage(u"wifi", 11, tint, 1, QFont::Bold).cacheKey(), first.cacheKey());
}

TEST(Symbols, LeaveTheCacheWhenManyColorsFollow) {
    const QImage first = symbolImage(u"wifi", 40, QColor(0, 0, 0), 2);
    for (int green = 1; green < 256; ++green)
        ASSERT_FALSE(symbolImage(u"wifi", 40, QColor(0, green, 0), 2).isNull());
    EXPECT_NE(symbolImage(u"wifi", 40, QColor(0, 0, 0), 2).cacheKey(), first.cacheKey());
}

TEST(Symbols, AreNullForAnUnknownNameOrAnInvalidSize) {
    EXPECT_FALSE(isKnownSymbol(u"no.such.symbol"));
    EXPECT_TRUE(symbolImage(u"no.such.symbol", 10, tint, 1).isNull());
    EXPECT_TRUE(symbolImage(u"../symbols/cpu/../../etc", 10, tint, 1).isNull());
    EXPECT_TRUE(symbolImage(u"cpu", 0, tint, 1).isNull());
    EXPECT_TRUE(symbolImage(u"cpu", std::numeric_limits<double>::quiet_NaN(), tint, 1).isNull());
    EXPECT_TRUE(symbolImage(u"cpu", 10, tint, 0).isNull());
    EXPECT_TRUE(symbolImage(u"cpu", 1e9, tint, 1).isNull());
}

class PaintedSymbol : public ::testing::TestWithParam<double> {};

TEST_P(PaintedSymbol, IsTheSameCrispImageWhereverItsCenterFallsWithinAPixel) {
    const double ratio = GetParam();
    const auto painted = [ratio](const QPointF& center) {
        return paintedImage(QSizeF(20, 20), ratio,
                            [&](QPainter& painter) { paintSymbol(painter, u"cpu", center, 10, tint); });
    };
    EXPECT_EQ(painted({10, 10}), painted({10.3 / ratio + 10 - 10 / ratio, 10}));
    const QImage expected = symbolImage(u"cpu", 10, tint, ratio);
    const int offset = qRound(10 * ratio - expected.width() / 2.0);
    const QImage cut = painted({10, 10}).copy(QRect(QPoint(offset, offset), expected.size()));
    EXPECT_EQ(unscaled(cut), unscaled(expected)) << "no resampling on the way to the screen";
}

INSTANTIATE_TEST_SUITE_P(Ratios, PaintedSymbol, ::testing::Values(1.0, 1.5, 2.0));

TEST(ProgramIconTest, HasEverySizeThatWindowManagersUse) {
    const QIcon icon = programIcon();
    for (const int side : {16, 24, 32, 48, 64, 128})
        EXPECT_TRUE(icon.availableSizes().contains(QSize(side, side))) << side;
}

TEST(ProgramIconTest, SeparatesItsThreeBarsEvenInSixteenPixels) {
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
