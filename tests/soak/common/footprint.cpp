#include "common/footprint.h"

#include <QAbstractEventDispatcher>
#include <QEventLoop>
#include <QTimer>
#include <fmt/format.h>

#include <ctime>
#include <filesystem>
#include <fstream>
#include <malloc.h>
#include <unistd.h>

namespace orvelle::soak {
namespace {

constexpr std::size_t mostResidentGrowth = isSanitized ? 200'000 : 2048; // kilobytes
/// Bytes. The caches of symbols and texts fill up slowly. A byte in every cycle would be more.
constexpr std::size_t mostHeapGrowth = 512 * 1024;
/// Threads that write the settings, each with a descriptor. They come and go, later where the disk is slow.
constexpr std::size_t mostWriters = 3;
constexpr std::chrono::milliseconds timeToSettle{300};

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

std::vector<std::string> growthBetween(const Footprint& before, const Footprint& after) {
    std::vector<std::string> growth;
    const auto compare = [&growth](const char* what, std::size_t first, std::size_t last, std::size_t most) {
        if (last > first + most)
            growth.push_back(fmt::format("{} grew from {} to {}", what, first, last));
    };
    compare("resident memory (kB)", before.residentKilobytes, after.residentKilobytes, mostResidentGrowth);
    compare("descriptors", before.descriptors, after.descriptors, mostWriters);
    compare("threads", before.threads, after.threads, mostWriters);
    compare("heap (bytes)", before.heapBytes, after.heapBytes, mostHeapGrowth);
    return growth;
}

int wakeUpsIn(std::chrono::milliseconds time) {
    int wakeUps = 0;
    QEventLoop loop;
    QTimer::singleShot(timeToSettle, &loop, &QEventLoop::quit);
    loop.exec();
    QObject counter;
    QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake, &counter,
                     [&wakeUps] { ++wakeUps; });
    QTimer::singleShot(time, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
    return wakeUps;
}

double threadMicroseconds() {
    timespec time{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e6 + static_cast<double>(time.tv_nsec) / 1e3;
}

} // namespace orvelle::soak
