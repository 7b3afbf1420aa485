#include "windows/settings/settings_layout.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numeric>

namespace orvelle {
namespace {

const double spacing = SettingsLayout::themeGridSpacing();

QVariantList toQml(const QList<double>& numbers) {
    return {numbers.cbegin(), numbers.cend()};
}

QList<double> fromQml(const QVariantList& values) {
    QList<double> numbers;
    for (const QVariant& value : values)
        numbers.append(value.toDouble());
    return numbers;
}

QList<double> sharedWidths(const QList<double>& needed, double available) {
    return fromQml(SettingsLayout::sharedWidths(toQml(needed), available));
}

QList<double> fittingColumns(const QList<double>& needed, double gap, double available) {
    return fromQml(SettingsLayout::fittingColumns(toQml(needed), gap, available));
}

QList<double> themeGridColumns(double available, int cardCount) {
    return fromQml(SettingsLayout::themeGridColumns(available, cardCount));
}

TEST(SharedWidthsTest, AreEqualWhenEachCellFitsIntoAnEqualShare) {
    EXPECT_EQ(sharedWidths({10, 40, 25}, 120), QList<double>({40, 40, 40}));
    EXPECT_EQ(sharedWidths({}, 120), QList<double>());
}

TEST(SharedWidthsTest, CoverEveryNeedWhenOneCellNeedsMore) {
    EXPECT_EQ(sharedWidths({10, 70, 25}, 120), QList<double>({15, 75, 30}));
    EXPECT_EQ(sharedWidths({10, 70, 25}, 99), QList<double>({8, 68, 23})) << "the deficit is shared equally";
}

TEST(SharedWidthsTest, AreWholeAndFillTheWidth) {
    for (const int available : {61, 200, 308, 428}) {
        const QList<double> widths = sharedWidths({44, 44.3, 52.5, 43.1, 66}, available);
        EXPECT_EQ(std::accumulate(widths.begin(), widths.end(), 0.0), available);
        for (const double width : widths)
            EXPECT_EQ(width, std::round(width));
    }
}

TEST(SharedWidthsTest, AreNeverNegative) {
    for (const double width : sharedWidths({1, 100}, 20))
        EXPECT_GE(width, 0);
}

TEST(SharedWidthsTest, CoverWholeNeedsAfterRounding) {
    for (const QList<double>& needed : {QList<double>{44, 53, 63, 50, 76}, QList<double>{30, 31, 120}}) {
        const double sum = std::accumulate(needed.begin(), needed.end(), 0.0);
        for (double spare = 0; spare < 10; ++spare) {
            const QList<double> widths = sharedWidths(needed, sum + spare);
            for (qsizetype index = 0; index < needed.size(); ++index)
                EXPECT_GE(widths[index], needed[index]);
        }
    }
}

TEST(FittingColumnsTest, AreOnePerCellWhenAllFitSideBySide) {
    EXPECT_EQ(fittingColumns({40, 20, 30}, 0, 90), QList<double>({40, 20, 30}));
    EXPECT_EQ(fittingColumns({40, 20, 30}, 5, 100), QList<double>({40, 20, 30}));
}

TEST(FittingColumnsTest, AreRoundedUpToWholePoints) {
    EXPECT_EQ(fittingColumns({40.1, 19.9}, 0, 61), QList<double>({41, 20}));
    EXPECT_EQ(fittingColumns({40.1, 19.9}, 0, 60.5).size(), 1);
}

TEST(FittingColumnsTest, FormEvenRowsAndAreAsWideAsTheirWidestCell) {
    EXPECT_EQ(fittingColumns({40, 20, 30, 50, 10}, 0, 149), QList<double>({50, 20, 30})) << "three and two";
    EXPECT_EQ(fittingColumns({40, 20, 30, 50}, 5, 95), QList<double>({40, 50})) << "two and two";
    EXPECT_EQ(fittingColumns({40, 20, 30, 50, 10}, 5, 94), QList<double>({50})) << "below each other";
}

TEST(FittingColumnsTest, AreAtLeastOneForAnyWidth) {
    EXPECT_EQ(fittingColumns({}, 10, 100), QList<double>({0}));
    for (const double available : {0.0, -10.0, std::nan("")})
        EXPECT_EQ(fittingColumns({40, 20}, 10, available), QList<double>({40}));
}

TEST(WidthOfOneRowTest, AddsTheWholeWidthsOfItsCells) {
    EXPECT_EQ(SettingsLayout::widthOfOneRow(toQml({40.1, 20, 30})), 91);
    EXPECT_EQ(SettingsLayout::widthOfOneRow({}), 0);
}

TEST(ThemeGridTest, HasAsManyColumnsAsFit) {
    EXPECT_EQ(themeGridColumns(440, 12), QList<double>({80, 80, 80, 80, 80}));
    EXPECT_EQ(themeGridColumns(439, 12).size(), 4);
    EXPECT_EQ(themeGridColumns(169, 12), QList<double>({120})) << "a column has a maximum width";
    EXPECT_EQ(themeGridColumns(170, 12), QList<double>({80, 80}));
}

TEST(ThemeGridTest, FillsTheWidthWithWholeColumnsUpToTheirMaximum) {
    EXPECT_EQ(themeGridColumns(428, 12), QList<double>({100, 99, 100, 99}));
    for (int width = 170; width < 700; ++width) {
        const QList<double> columns = themeGridColumns(width, 12);
        double end = -spacing;
        for (const double column : columns) {
            EXPECT_EQ(column, std::round(column));
            EXPECT_TRUE(column >= 80 && column <= 120) << column;
            end += spacing + column;
        }
        const double widest = static_cast<double>(columns.size()) * (120 + spacing) - spacing;
        EXPECT_EQ(end, std::min<double>(width, widest));
    }
}

TEST(ThemeGridTest, HasNoMoreColumnsThanCards) {
    EXPECT_EQ(themeGridColumns(428, 3), QList<double>({120, 120, 120}));
    EXPECT_EQ(themeGridColumns(1400, 12).size(), 12);
    EXPECT_EQ(themeGridColumns(SettingsLayout::largestThemeGridWidth(12), 12), QList<double>(12, 120));
    EXPECT_EQ(SettingsLayout::largestThemeGridWidth(12), 12 * 120 + 11 * spacing);
}

TEST(ThemeGridTest, HasAtLeastOneColumnForAnyWidth) {
    for (const double width : {0.0, -10.0, std::nan(""), 10.0}) {
        EXPECT_EQ(themeGridColumns(width, 12).size(), 1);
    }
    EXPECT_EQ(themeGridColumns(1e300, 12).size(), 12);
}

} // namespace
} // namespace orvelle
