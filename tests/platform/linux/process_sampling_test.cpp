#include "child_process.h"
#include "core/system_monitor.h"
#include "platform/host.h"
#include "process_tree.h"
#include "settings/settings_store.h"
#include "support/temporary_settings.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <list>
#include <new>

namespace {

std::atomic<std::size_t> allocationCount;

} // namespace

// Every allocation of this program is counted; the sanitizers still see it, since malloc is theirs.
void* operator new(std::size_t size) {
    ++allocationCount;
    if (void* memory = std::malloc(size == 0 ? 1 : size))
        return memory;
    throw std::bad_alloc();
}
void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
    ++allocationCount;
    return std::malloc(size == 0 ? 1 : size);
}
void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}

namespace orvelle::linux_platform {
namespace {

/// Allocations of the quietest of several samples: other programs of the machine come, go and run meanwhile.
template <class Sample>
std::size_t fewestAllocations(Sample sample) {
    std::size_t fewest = ~std::size_t{0};
    for (int round = 0; round < 10; ++round) {
        const std::size_t before = allocationCount;
        sample();
        fewest = std::min(fewest, allocationCount - before);
    }
    return fewest;
}

TEST(ProcessSampling, AllocatesNothingForIdleProcesses) {
    std::list<ChildProcess> idle(100);
    const MachineSources sources = makeHostSources();
    const auto processes = sources.process->readProcesses();
    ASSERT_TRUE(processes);
    ASSERT_GE(processes->size(), idle.size());
    EXPECT_EQ(fewestAllocations([&] { static_cast<void>(sources.process->readProcesses()); }), 0u);
}

TEST(ProcessSampling, PublishesWithoutAnAllocationPerProcess) {
    std::list<ChildProcess> idle(100);
    const MachineSources sources = makeHostSources();
    ProcessMonitor monitor(*sources.process, sources.now);
    monitor.update();
    EXPECT_EQ(monitor.topMemoryProcesses().size(), 5);
    EXPECT_LT(fewestAllocations([&] { monitor.update(); }), 30u);
}

class ProcessCadenceTest : public ::testing::Test {
protected:
    [[nodiscard]] std::vector<qint32> listed() {
        std::vector<qint32> pids;
        for (const ProcessInfo& info : monitor.process().topMemoryProcesses())
            pids.push_back(info.pid);
        return pids;
    }

    ProcessTree tree;
    TemporarySettings file;
    SettingsStore settings{file.path()};
    SystemMonitor monitor{makeTreeSources(tree.root(), [] { return WallTime{}; }), settings};
};

TEST_F(ProcessCadenceTest, SamplesProcessesInTheFirstCycleAndInEveryThirdAfterIt) {
    EXPECT_TRUE(listed().empty());
    for (std::int32_t cycle = 1; cycle <= 10; ++cycle) {
        const std::vector<qint32> before = listed();
        tree.put({.pid = cycle, .residentPages = static_cast<std::uint64_t>(cycle), .exe = {}});
        monitor.updateCycle();
        if (cycle % 3 == 1)
            EXPECT_EQ(listed().at(0), cycle);
        else
            EXPECT_EQ(listed(), before);
    }
}

TEST_F(ProcessCadenceTest, StoppingDoesNotChangeWhichCyclesSampleProcesses) {
    tree.put({.pid = 1, .exe = {}});
    monitor.start();
    EXPECT_EQ(listed(), std::vector<qint32>{1});
    tree.put({.pid = 2, .exe = {}});
    monitor.restart();
    monitor.restart();
    EXPECT_EQ(listed(), std::vector<qint32>{1});
    monitor.restart();
    EXPECT_EQ(listed(), (std::vector<qint32>{1, 2}));
}

} // namespace
} // namespace orvelle::linux_platform
