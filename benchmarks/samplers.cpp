#include "samplers.h"

#include "core/process_monitor.h"
#include "helpers.h"
#include "platform/host.h"
#include "platform/linux/process_clock.h"
#include "platform/linux/process_files.h"
#include "platform/linux/process_table.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <malloc.h>
#include <string>
#include <thread>
#include <utility>
#include <vector>

namespace orvelle::bench {
namespace {

template <class Sample>
void repeat(const Rhythm& rhythm, Sample sample) {
    for (int count = 0; rhythm.samples == 0 || count < rhythm.samples; ++count) {
        if (count > 0)
            std::this_thread::sleep_for(rhythm.interval);
        sample(count);
    }
}

double heapBytes() {
    const struct mallinfo2 use = ::mallinfo2();
    return static_cast<double>(use.uordblks + use.hblkhd);
}

/// To the page. `/proc/self/statm` is off by up to 128 kB per processor.
double residentBytes() {
    std::ifstream rollup("/proc/self/smaps_rollup");
    for (std::string line; std::getline(rollup, line);) {
        if (line.starts_with("Rss:"))
            return std::stod(line.substr(4)) * 1024;
    }
    return 0;
}

/// Passes a source's answers on and counts what they hold.
class CountingSource final : public ProcessSource {
public:
    CountingSource(ProcessSource& source, SampleCounts& counts)
        : m_source(source)
        , m_counts(counts) {}

    std::optional<std::uint64_t> readTotalMemory() override { return m_source.readTotalMemory(); }
    std::optional<std::span<const ProcessRecord>> readProcesses() override {
        const auto records = m_source.readProcesses();
        if (!records)
            return records;
        std::vector<std::pair<std::int32_t, std::uint64_t>> times;
        times.reserve(records->size());
        for (const ProcessRecord& record : *records)
            times.emplace_back(record.pid, record.userNanoseconds + record.systemNanoseconds);
        if (!m_times.empty())
            count(times);
        m_times = std::move(times);
        return records;
    }

private:
    void count(const std::vector<std::pair<std::int32_t, std::uint64_t>>& times) {
        m_counts.listed += times.size();
        for (const auto& time : times)
            m_counts.ran += std::ranges::binary_search(m_times, time) ? 0U : 1U;
    }

    ProcessSource& m_source;
    SampleCounts& m_counts;
    std::vector<std::pair<std::int32_t, std::uint64_t>> m_times;
};

} // namespace

SampleCounts sampleProcesses(const Rhythm& rhythm) {
    SampleCounts counts;
    const MachineSources sources = makeHostSources();
    CountingSource counting(*sources.process, counts);
    // Counting costs time of its own, so it is done only where time is not measured.
    ProcessSource& source = rhythm.samples > 0 ? counting : *sources.process;
    ProcessMonitor monitor(source, sources.now);
    repeat(rhythm, [&](int) { monitor.update(); });
    return counts;
}

void askOnlyClocks(const Rhythm& rhythm) {
    linux_platform::ProcessFiles files("/");
    if (!files.open())
        return;
    const std::vector<std::int32_t> pids = files.list();
    linux_platform::NewestPid newestPid("/");
    repeat(rhythm, [&](int) {
        static_cast<void>(newestPid.read());
        for (const std::int32_t pid : pids)
            static_cast<void>(linux_platform::readProcessClock(pid));
    });
}

void readOnlyStatFiles(const Rhythm& rhythm) {
    linux_platform::ProcessFiles files("/");
    if (!files.open())
        return;
    repeat(rhythm, [&](int) {
        for (const std::int32_t pid : files.list())
            static_cast<void>(files.readStat(pid));
    });
}

MemoryGrowth measureMemoryGrowth(std::size_t extra) {
    // The first ones bring everything into memory that does not grow with the processes.
    constexpr std::size_t first = 200;
    Helpers helpers;
    helpers.reserve(first + extra);
    helpers.addSleepers(first);
    const MachineSources sources = makeHostSources();
    ProcessMonitor monitor(*sources.process, sources.now);
    const auto sampleTwice = [&monitor] {
        monitor.update();
        monitor.update();
    };
    const auto countProcesses = [&sources] { return sources.process->readProcesses().value().size(); };
    sampleTwice();
    const std::size_t countBefore = countProcesses();
    ::malloc_trim(0);
    const double heapBefore = heapBytes();
    const double residentBefore = residentBytes();
    helpers.addSleepers(extra);
    sampleTwice();
    const double heapGrowth = heapBytes() - heapBefore;
    const double residentGrowth = residentBytes() - residentBefore;
    const auto added = static_cast<double>(countProcesses() - countBefore); // others come and go too
    return {.heapBytes = heapGrowth / added,
            .residentBytes = residentGrowth / added,
            .nameLength = std::filesystem::read_symlink("/proc/self/exe").filename().string().size()};
}

} // namespace orvelle::bench
