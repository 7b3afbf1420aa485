#include "windows/settings/shared_widths.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numeric>

namespace orvelle {
namespace {

TEST(SharedWidthsTest, AreEvenWhereAllHaveRoomInAnEvenShare) {
    EXPECT_EQ(sharedWidths({10, 40, 25}, 120), QList<double>({40, 40, 40}));
    EXPECT_EQ(sharedWidths({}, 120), QList<double>());
}

TEST(SharedWidthsTest, GiveEachWhatItNeedsWhereOneNeedsMore) {
    EXPECT_EQ(sharedWidths({10, 70, 25}, 120), QList<double>({15, 75, 30}));
    EXPECT_EQ(sharedWidths({10, 70, 25}, 99), QList<double>({8, 68, 23})) << "all go without the same";
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

TEST(SharedWidthsTest, KeepWhatEachNeedsInWholePointsThroughTheRounding) {
    for (const QList<double>& needed : {QList<double>{44, 53, 63, 50, 76}, QList<double>{30, 31, 120}}) {
        const double sum = std::accumulate(needed.begin(), needed.end(), 0.0);
        for (double spare = 0; spare < 10; ++spare) {
            const QList<double> widths = sharedWidths(needed, sum + spare);
            for (qsizetype index = 0; index < needed.size(); ++index)
                EXPECT_GE(widths[index], needed[index]);
        }
    }
}

TEST(FittingColumnsTest, AreOneForEachCellWhereAllFitSideBySide) {
    EXPECT_EQ(fittingColumns({40, 20, 30}, 0, 90), QList<double>({40, 20, 30}));
    EXPECT_EQ(fittingColumns({40, 20, 30}, 5, 100), QList<double>({40, 20, 30}));
}

TEST(FittingColumnsTest, AreWholePointsSoThatNoTextLosesAFractionOfItsRoom) {
    EXPECT_EQ(fittingColumns({40.1, 19.9}, 0, 61), QList<double>({41, 20}));
    EXPECT_EQ(fittingColumns({40.1, 19.9}, 0, 60.5).size(), 1);
}

TEST(FittingColumnsTest, BreakIntoEvenRowsAndAreAsWideAsTheWidestCellInThem) {
    EXPECT_EQ(fittingColumns({40, 20, 30, 50, 10}, 0, 149), QList<double>({50, 20, 30})) << "three and two";
    EXPECT_EQ(fittingColumns({40, 20, 30, 50}, 5, 95), QList<double>({40, 50})) << "two and two";
    EXPECT_EQ(fittingColumns({40, 20, 30, 50, 10}, 5, 94), QList<double>({50})) << "below each other";
}

TEST(FittingColumnsTest, AreOneWhateverTheWidth) {
    EXPECT_EQ(fittingColumns({}, 10, 100), QList<double>({0}));
    for (const double available : {0.0, -10.0, std::nan("")})
        EXPECT_EQ(fittingColumns({40, 20}, 10, available), QList<double>({40}));
}

} // namespace
} // namespace orvelle
