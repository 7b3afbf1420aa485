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
#include <malloc.h>
#include <new>

namespace {

std::atomic<std::size_t> allocationCount;
std::atomic<std::ptrdiff_t> heldBytes;

/// What a block of `size` bytes takes from the heap of the C library: a word more, in steps of two words.
std::ptrdiff_t heapBytesOf(std::size_t size) {
    constexpr std::size_t step = 16;
    return static_cast<std::ptrdiff_t>((size + sizeof(std::size_t) + step - 1) / step * step);
}

void* allocate(std::size_t size) noexcept {
    void* memory = std::malloc(size == 0 ? 1 : size);
    ++allocationCount;
    if (memory != nullptr)
        heldBytes += heapBytesOf(::malloc_usable_size(memory));
    return memory;
}

void release(void* memory) noexcept {
    if (memory != nullptr)
        heldBytes -= heapBytesOf(::malloc_usable_size(memory));
    std::free(memory);
}

} // namespace

// Every allocation of this program is counted; the sanitizers still see it, since malloc is theirs.
void* operator new(std::size_t size) {
    if (void* memory = allocate(size))
        return memory;
    throw std::bad_alloc();
}
void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept {
    return allocate(size);
}
void operator delete(void* memory) noexcept {
    release(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    release(memory);
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

TEST(ProcessSampling, HoldsAtMost150BytesForAProcessWithANameOf21Characters) {
    const ProcessTree tree;
    auto putUpTo = [&tree, last = 0](std::int32_t pid) mutable {
        while (last < pid)
            tree.put({.pid = ++last, .exe = "/usr/bin/a-name-of-21-letters!"});
    };
    constexpr std::int32_t few = 100;
    constexpr std::int32_t many = 2000;
    putUpTo(few);
    const MachineSources sources = makeTreeSources(tree.root(), [] { return WallTime{}; });
    ProcessMonitor monitor(*sources.process, sources.now);
    monitor.update();
    const std::ptrdiff_t before = heldBytes;
    putUpTo(many);
    monitor.update();
    EXPECT_EQ(monitor.topCPUProcesses().first().name.size(), 21);
    EXPECT_LE(heldBytes - before, 150 * (many - few));
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
