#include "core/process_ranking.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <initializer_list>
#include <random>
#include <utility>
#include <vector>

namespace orvelle {
namespace {

ProcessTimes userTime(std::uint64_t nanoseconds) {
    return {.userNanoseconds = nanoseconds, .systemNanoseconds = 0, .timestamp = {}};
}

/// One sample in which exactly `pids` are listed; each is given its pid as its user time.
void sample(ProcessTimesByPid& times, std::initializer_list<std::int32_t> pids) {
    times.beginSample(pids.size());
    for (const std::int32_t pid : pids) {
        if (times.see(pid) == nullptr)
            times.add(pid, userTime(static_cast<std::uint64_t>(pid)));
    }
    times.forgetUnseen();
}

TEST(ProcessTimesByPid, KnowsNothingAtFirst) {
    ProcessTimesByPid times;
    times.beginSample(5);
    EXPECT_EQ(times.see(1), nullptr);
    EXPECT_EQ(times.size(), 0u);
}

TEST(ProcessTimesByPid, FindsEveryProcessWhateverTheOrderOfTheListing) {
    ProcessTimesByPid times;
    sample(times, {900, 3, 77, 1, 500});
    for (const auto order : {std::initializer_list<std::int32_t>{900, 3, 77, 1, 500},
                             {1, 3, 77, 500, 900},
                             {900, 500, 77, 3, 1},
                             {77, 900, 1, 500, 3}}) {
        times.beginSample(5);
        for (const std::int32_t pid : order) {
            const ProcessTimes* found = times.see(pid);
            ASSERT_NE(found, nullptr) << pid;
            EXPECT_EQ(found->userNanoseconds, static_cast<std::uint64_t>(pid));
        }
        times.forgetUnseen();
        EXPECT_EQ(times.size(), 5u);
    }
}

TEST(ProcessTimesByPid, ForgetsWhatWasNotListed) {
    ProcessTimesByPid times;
    sample(times, {1, 2, 3, 4});
    sample(times, {2, 4, 5});
    EXPECT_EQ(times.size(), 3u);
    times.beginSample(5);
    EXPECT_EQ(times.see(1), nullptr);
    EXPECT_NE(times.see(2), nullptr);
    EXPECT_EQ(times.see(3), nullptr);
    EXPECT_NE(times.see(4), nullptr);
    EXPECT_NE(times.see(5), nullptr);
}

TEST(ProcessTimesByPid, KeepsWhatIsWrittenIntoItsTimes) {
    ProcessTimesByPid times;
    sample(times, {1, 2});
    times.beginSample(5);
    *times.see(2) = userTime(99);
    times.forgetUnseen();
    times.beginSample(5);
    ASSERT_NE(times.see(2), nullptr);
    EXPECT_EQ(times.see(2)->userNanoseconds, 99u);
}

TEST(ProcessTimesByPid, SurvivesAListingThatNamesAProcessTwice) {
    ProcessTimesByPid times;
    sample(times, {1, 2, 2, 3});
    sample(times, {1, 2, 2, 3});
    sample(times, {1, 2, 3});
    EXPECT_EQ(times.size(), 3u);
}

std::vector<int> heaviestFive(const std::vector<std::pair<int, int>>& items) {
    TopN<int, int, 5> heaviest;
    for (const auto& [item, weight] : items)
        heaviest.offer(item, weight);
    std::vector<int> result;
    for (const auto& [item, weight] : heaviest.ranked())
        result.push_back(item);
    return result;
}

TEST(TopN, IsEmptyWithoutItems) {
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
