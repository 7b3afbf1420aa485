#include "footprint.h"

#include <ctime>
#include <filesystem>
#include <fstream>
#include <malloc.h>
#include <unistd.h>

namespace orvelle::soak {
namespace {

std::size_t entriesOf(const char* folder) {
    std::size_t count = 0;
    for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator(folder))
        ++count;
    return count;
}

std::size_t residentKilobytes() {
    std::size_t all = 0;
    std::size_t resident = 0;
    std::ifstream("/proc/self/statm") >> all >> resident;
    return resident * static_cast<std::size_t>(::sysconf(_SC_PAGESIZE)) / 1024;
}

} // namespace

Footprint measureFootprint() {
    ::malloc_trim(0);
    const struct mallinfo2 heap = ::mallinfo2();
    return {.residentKilobytes = residentKilobytes(),
            .heapBytes = heap.uordblks + heap.hblkhd,
            .descriptors = entriesOf("/proc/self/fd"),
            .threads = entriesOf("/proc/self/task")};
}

double threadMicroseconds() {
    timespec time{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e6 + static_cast<double>(time.tv_nsec) / 1e3;
}

} // namespace orvelle::soak
