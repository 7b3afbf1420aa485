#include "child_process.h"
#include "platform/linux/linux_process_source.h"
#include "platform/linux/process_clock.h"
#include "process_tree.h"

#include <gtest/gtest.h>

#include <pthread.h>
#include <sys/mman.h>
#include <sys/syscall.h>

namespace orvelle::linux_platform {
namespace {

constexpr std::uint64_t millisecond = 1'000'000;
constexpr std::uint64_t mebibyte = std::uint64_t{1} << 20;

/// The system rounds user and system time down to a tick of 10 ms each where it counts in ticks.
constexpr std::uint64_t twoTicks = 20 * millisecond;

/// More than it takes until every idle process has had its turn to be read.
constexpr int samplesForAllTurns = 60;

std::uint64_t timeOf(const ProcessRecord& record) {
    return record.userNanoseconds + record.systemNanoseconds;
}

std::optional<ProcessRecord> readFrom(LinuxProcessSource& source, std::int32_t pid) {
    const auto records = source.readProcesses();
    if (!records)
        return std::nullopt;
    const auto found = std::ranges::find(*records, pid, &ProcessRecord::pid);
    return found == records->end() ? std::nullopt : std::optional(*found);
}

/// Each test runs both ways of telling processor time, on the machine that it runs on. None depends on how
/// long anything takes there.
class ProcessLiveTest : public ::testing::TestWithParam<ProcessTimesFrom> {
protected:
    void SetUp() override {
        if (GetParam() == ProcessTimesFrom::processClocks && !clocksTellOfListedProcesses("/"))
            GTEST_SKIP() << "the process clocks do not answer here";
    }
    std::optional<ProcessRecord> read(std::int32_t pid) { return readFrom(source, pid); }
    /// Afterwards new processes are looked for among the newest pids.
    void leaveFirstListing() { static_cast<void>(source.readProcesses()); }

    LinuxProcessSource source{"/", GetParam()};
};

TEST_P(ProcessLiveTest, ListsThisProgramUnderTheNameOfItsFile) {
    const auto own = read(::getpid());
    ASSERT_TRUE(own);
    EXPECT_EQ(own->name, std::filesystem::read_symlink("/proc/self/exe").filename().string());
    EXPECT_GT(own->residentBytes, mebibyte);
    EXPECT_GT(source.readTotalMemory().value_or(0), own->residentBytes);
}

TEST_P(ProcessLiveTest, AscendsByPidWithoutDoubles) {
    for (int sample = 0; sample < 12; ++sample) {
        const auto records = source.readProcesses();
        ASSERT_TRUE(records);
        EXPECT_EQ(std::ranges::adjacent_find(*records, std::ranges::greater_equal{}, &ProcessRecord::pid),
                  records->end());
    }
}

TEST_P(ProcessLiveTest, ABusyChildShowsTheTimeItUsedAndASleepingOneNone) {
    const ChildProcess busy([](const ChildProcess&) { burnNanoseconds(300 * millisecond); });
    const ChildProcess sleeper;
    const auto busyBefore = read(busy.pid());
    const auto sleeperBefore = read(sleeper.pid());
    busy.work();
    const auto busyAfter = read(busy.pid());
    const auto sleeperAfter = read(sleeper.pid());
    ASSERT_TRUE(busyBefore && busyAfter && sleeperBefore && sleeperAfter);
    const std::uint64_t used = timeOf(*busyAfter) - timeOf(*busyBefore);
    EXPECT_GE(used, 300 * millisecond - twoTicks);
    EXPECT_LE(used, 600 * millisecond);
    // On its way to sleep it may have been interrupted, which leaves a last few microseconds to be counted.
    EXPECT_LE(timeOf(*sleeperAfter), timeOf(*sleeperBefore) + millisecond);
}

TEST_P(ProcessLiveTest, CountsTheTimeOfThreadsThatHaveEnded) {
    const ChildProcess child([](const ChildProcess&) {
        pthread_t thread{};
        const auto burn = [](void*) -> void* {
            burnNanoseconds(100 * millisecond);
            return nullptr;
        };
        if (::pthread_create(&thread, nullptr, burn, nullptr) == 0)
            ::pthread_join(thread, nullptr);
    });
    const auto before = read(child.pid());
    child.work();
    const auto after = read(child.pid());
    ASSERT_TRUE(before && after);
    EXPECT_GE(timeOf(*after) - timeOf(*before), 100 * millisecond - twoTicks);
}

TEST_P(ProcessLiveTest, FollowsTheMemoryOfAProcessThatRuns) {
    const ChildProcess child([](const ChildProcess&) {
        void* memory = ::mmap(nullptr, 32 * mebibyte, PROT_READ | PROT_WRITE,
                              MAP_PRIVATE | MAP_ANONYMOUS | MAP_POPULATE, -1, 0);
        if (memory == MAP_FAILED)
            ::_exit(1);
    });
    const auto before = read(child.pid());
    child.work();
    const auto after = read(child.pid());
    ASSERT_TRUE(before && after);
    EXPECT_GE(after->residentBytes, before->residentBytes + 24 * mebibyte);
}

TEST_P(ProcessLiveTest, NoticesWithinItsTurnThatAnIdleProcessLostPages) {
    const int file = ::memfd_create("shared", MFD_CLOEXEC);
    ASSERT_EQ(::ftruncate(file, 32 * mebibyte), 0);
    const ChildProcess child([file](const ChildProcess&) {
        if (::mmap(nullptr, 32 * mebibyte, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_POPULATE, file, 0) ==
            MAP_FAILED)
            ::_exit(1);
    });
    child.work();
    const auto before = read(child.pid());
    ASSERT_EQ(::ftruncate(file, 0), 0); // takes the pages away from the child, which sleeps on
    ::close(file);
    std::optional<ProcessRecord> after;
    for (int sample = 0; sample < samplesForAllTurns; ++sample)
        after = read(child.pid());
    ASSERT_TRUE(before && after);
    EXPECT_LE(after->residentBytes + 24 * mebibyte, before->residentBytes);
}

TEST_P(ProcessLiveTest, FindsANewProcessInTheNextSample) {
    leaveFirstListing();
    for (int round = 0; round < 12; ++round) {
        const ChildProcess child;
        EXPECT_TRUE(read(child.pid())) << round;
    }
}

TEST_P(ProcessLiveTest, DropsAProcessThatEndedAndSkipsItsZombie) {
    ChildProcess child;
    EXPECT_TRUE(read(child.pid()));
    const std::int32_t pid = child.pid();
    child.kill();
    child.waitUntilZombie();
    for (int sample = 0; sample < 12; ++sample)
        EXPECT_FALSE(read(pid)) << "zombie, sample " << sample;
    child.reap();
    EXPECT_FALSE(read(pid));
}

TEST_P(ProcessLiveTest, ListsNoThreads) {
    void* shared = ::mmap(nullptr, sizeof(pid_t), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    ASSERT_NE(shared, MAP_FAILED);
    const ChildProcess child([shared](const ChildProcess&) {
        pthread_t thread{};
        const auto sleep = [](void* threadId) -> void* {
            *static_cast<volatile pid_t*>(threadId) = static_cast<pid_t>(::syscall(SYS_gettid));
            while (true)
                ::pause();
        };
        if (::pthread_create(&thread, nullptr, sleep, shared) != 0)
            ::_exit(1);
        while (*static_cast<volatile pid_t*>(shared) == 0)
            ::usleep(500);
    });
    leaveFirstListing();
    child.work();
    const pid_t threadId = *static_cast<volatile pid_t*>(shared);
    ASSERT_GT(threadId, child.pid());
    for (int sample = 0; sample < 12; ++sample) {
        EXPECT_TRUE(read(child.pid()));
        EXPECT_FALSE(read(threadId));
    }
    ::munmap(shared, sizeof(pid_t));
}

TEST_P(ProcessLiveTest, KeepsAProcessWhoseFirstThreadHasEnded) {
    const ChildProcess child([](const ChildProcess& self) {
        pthread_t thread{};
        const auto burnAndSleep = [](void* process) -> void* {
            burnNanoseconds(100 * millisecond);
            static_cast<const ChildProcess*>(process)->reply();
            while (true)
                ::pause();
        };
        void* argument = const_cast<ChildProcess*>(&self);
        if (::pthread_create(&thread, nullptr, burnAndSleep, argument) != 0)
            ::_exit(1);
        ::syscall(SYS_exit, 0); // of this thread alone
    });
    const auto before = read(child.pid());
    child.work();
    const auto after = read(child.pid());
    ASSERT_TRUE(before && after);
    EXPECT_EQ(after->name, before->name);
    EXPECT_GE(timeOf(*after) - timeOf(*before), 100 * millisecond - twoTicks);
}

TEST_P(ProcessLiveTest, RenamesAProcessThatRunsAnotherProgramAndKeepsTheNameOfARemovedFile) {
    const ProcessTree folder;
    const std::filesystem::path program = folder.root() / "a program that goes";
    std::filesystem::copy_file(std::filesystem::canonical("/bin/sleep"), program);
    const ChildProcess child([&program](const ChildProcess&) {
        ::execl(program.c_str(), program.c_str(), "1000", nullptr);
        ::_exit(1);
    });
    const auto before = read(child.pid());
    child.work();
    std::filesystem::remove(program);
    LinuxProcessSource later("/", GetParam());
    const auto after = read(child.pid());
    const auto seenLater = readFrom(later, child.pid());
    ASSERT_TRUE(before && after && seenLater);
    EXPECT_NE(before->name, after->name);
    EXPECT_EQ(after->name, "a program that goes");
    EXPECT_EQ(seenLater->name, "a program that goes");
}

INSTANTIATE_TEST_SUITE_P(Both, ProcessLiveTest,
                         ::testing::Values(ProcessTimesFrom::processClocks, ProcessTimesFrom::statFiles),
                         [](const auto& test) {
                             return test.param == ProcessTimesFrom::processClocks ? "Clocks" : "StatFiles";
                         });

TEST(ProcessTimes, AreTheSameInBothWaysToATickOfEachKind) {
    if (!clocksTellOfListedProcesses("/"))
        GTEST_SKIP() << "the process clocks do not answer here";
    const ChildProcess child([](const ChildProcess&) { burnNanoseconds(50 * millisecond); });
    LinuxProcessSource byClock("/", ProcessTimesFrom::processClocks);
    LinuxProcessSource byStat("/", ProcessTimesFrom::statFiles);
    for (int round = 0; round < 5; ++round) {
        child.work();
        const auto clock = readFrom(byClock, child.pid());
        const auto stat = readFrom(byStat, child.pid());
        ASSERT_TRUE(clock && stat);
        EXPECT_GE(clock->userNanoseconds + millisecond, timeOf(*stat));
        EXPECT_LE(clock->userNanoseconds, timeOf(*stat) + twoTicks + millisecond);
        EXPECT_EQ(clock->systemNanoseconds, 0u);
        EXPECT_EQ(clock->residentBytes, stat->residentBytes);
        EXPECT_EQ(clock->name, stat->name);
    }
}

} // namespace
} // namespace orvelle::linux_platform
