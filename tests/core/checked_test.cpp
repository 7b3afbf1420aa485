#include "core/checked.h"

#include <gtest/gtest.h>

namespace orvelle {
namespace {

TEST(Checked, ResultsWithinRangeAreTheOrdinaryOnes) {
    EXPECT_EQ(checkedAdd<std::uint64_t>(1, 2), 3u);
    EXPECT_EQ(checkedSubtract<std::uint64_t>(3, 3), 0u);
    EXPECT_EQ(checkedMultiply<std::int64_t>(-3, 4), -12);
    EXPECT_EQ(checkedConvert<std::uint64_t>(std::int64_t{7}), 7u);
    EXPECT_EQ(checkedTruncate(-2.9), -2);
}

TEST(Checked, ResultsOutOfRangeStopTheProcess) {
    EXPECT_DEATH((void)checkedAdd(~std::uint64_t{0}, std::uint64_t{1}), "addition");
    EXPECT_DEATH((void)checkedSubtract(std::uint64_t{0}, std::uint64_t{1}), "subtraction");
    EXPECT_DEATH((void)checkedMultiply(~std::uint64_t{0}, std::uint64_t{2}), "multiplication");
    EXPECT_DEATH((void)checkedConvert<std::uint64_t>(std::int64_t{-1}), "conversion");
    EXPECT_DEATH((void)checkedConvert<std::int64_t>(~std::uint64_t{0}), "conversion");
    EXPECT_DEATH((void)checkedTruncate(std::numeric_limits<double>::infinity()), "truncation");
    EXPECT_DEATH((void)checkedTruncate(1e19), "truncation");
}

TEST(Checked, ACounterThatWentBackwardsDidNotMove) {
    EXPECT_EQ(counterDelta(10, 7), 3u);
    EXPECT_EQ(counterDelta(7, 10), 0u);
}

} // namespace
} // namespace orvelle
