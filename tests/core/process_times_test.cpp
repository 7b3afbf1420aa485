#include "core/process_times.h"

#include <gtest/gtest.h>

#include <initializer_list>

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

} // namespace
} // namespace orvelle
