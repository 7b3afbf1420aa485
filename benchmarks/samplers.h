#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>

namespace orvelle::bench {

/// How often a sampler samples: `samples` times, or without end when 0.
struct Rhythm {
    int samples = 0;
    std::chrono::milliseconds interval{3000};
};

/// How many processes the samples after the first saw, and how many of them ran in between, both in sum.
struct SampleCounts {
    std::uint64_t listed = 0;
    std::uint64_t ran = 0;
};

/// Samples as the program does, with its own monitor and source.
SampleCounts sampleProcesses(const Rhythm& rhythm);

/// Least work of the same kind, nothing but the kernel's calls: the newest pid and every process's clock.
void askOnlyClocks(const Rhythm& rhythm);

/// Least work of a lister without clocks: opens, reads and closes every `/proc/PID/stat` and drops the text.
void readOnlyStatFiles(const Rhythm& rhythm);

/// What the samples of `extra` more processes add to this program's memory, in bytes per process.
struct MemoryGrowth {
    double heapBytes = 0;
    double residentBytes = 0;
    std::size_t nameLength = 0; ///< of each of those processes
};
[[nodiscard]] MemoryGrowth measureMemoryGrowth(std::size_t extra);

} // namespace orvelle::bench
