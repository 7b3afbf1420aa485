#include "settings_ui/shared_widths.h"

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

} // namespace
} // namespace orvelle
