#include "core/top_n.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <utility>
#include <vector>

namespace orvelle {
namespace {

std::vector<int> heaviestFive(const std::vector<std::pair<int, int>>& items) {
    TopN<int, int, 5> heaviest;
    for (const auto& [item, weight] : items)
        heaviest.offer(item, weight);
    std::vector<int> result;
    for (const auto& [item, weight] : heaviest.ranked())
        result.push_back(item);
    return result;
}

TEST(TopN, OfNothingIsNothing) {
    EXPECT_TRUE(heaviestFive({}).empty());
}

TEST(TopN, OrdersFewerThanItKeeps) {
    EXPECT_EQ(heaviestFive({{1, 10}, {2, 30}, {3, 20}}), (std::vector{2, 3, 1}));
}

TEST(TopN, DropsTheLightest) {
    EXPECT_EQ(heaviestFive({{1, 1}, {2, 2}, {3, 3}, {4, 4}, {5, 5}, {6, 6}, {7, 0}}),
              (std::vector{6, 5, 4, 3, 2}));
}

TEST(TopN, OfEqualOnesTheFirstOfferedComesFirst) {
    EXPECT_EQ(heaviestFive({{1, 7}, {2, 7}, {3, 9}, {4, 7}, {5, 7}, {6, 7}, {7, 9}}),
              (std::vector{3, 7, 1, 2, 4}));
}

TEST(TopN, IsAlwaysTheStartOfAStableSort) {
    std::mt19937 random(20260101);
    for (int round = 0; round < 500; ++round) {
        std::vector<std::pair<int, int>> items(random() % 12);
        for (std::size_t index = 0; index < items.size(); ++index)
            items[index] = {static_cast<int>(index), static_cast<int>(random() % 6)};
        auto sorted = items;
        std::ranges::stable_sort(sorted, std::greater{}, &std::pair<int, int>::second);
        std::vector<int> expected;
        for (std::size_t index = 0; index < std::min<std::size_t>(5, sorted.size()); ++index)
            expected.push_back(sorted[index].first);
        EXPECT_EQ(heaviestFive(items), expected);
    }
}

} // namespace
} // namespace orvelle
