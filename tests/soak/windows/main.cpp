// orvelle-soak-windows SECONDS SEED: opens and closes the windows of the program while a scripted machine is
// sampled, and compares the process after the warm-up with the process at the end. Prints a row of a table.

#include "common/footprint.h"
#include "opened_windows.h"

#include <QGuiApplication>
#include <fmt/format.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>

namespace orvelle::soak {
namespace {

/// Every window has been seen with most themes and styles.
constexpr int roundsOfWarmUp = isSanitized ? 2 : 40;
constexpr int roundsBetweenWatches = 10;
constexpr int samplesOfAWatch = 100;
constexpr std::chrono::milliseconds idleTime{1000};
constexpr int mostSlowWrites = 4;

struct Measurement {
    Footprint footprint;
    int wakeUps = 0; ///< in `idleTime`, with everything closed
};

/// Where the disk is slow, settings that are written late wake the process, so the least of some tries
/// counts.
Measurement measure(OpenedWindows& windows) {
    windows.settle();
    int wakeUps = wakeUpsIn(idleTime);
    for (int tried = 0; tried < mostSlowWrites && wakeUps > 0; ++tried)
        wakeUps = std::min(wakeUps, wakeUpsIn(idleTime));
    return {measureFootprint(), wakeUps};
}

void use(OpenedWindows& windows, int round) {
    windows.useEach();
    if (round % roundsBetweenWatches == 0)
        windows.watch(
            moduleTable[static_cast<std::size_t>(round / roundsBetweenWatches) % moduleTable.size()].id,
            samplesOfAWatch);
}

std::string rowOf(const OpenedWindows& windows, const Measurement& first, const Measurement& last) {
    const auto pair = [](auto before, auto after) { return fmt::format("{}, {}", before, after); };
    const Footprint& before = first.footprint;
    const Footprint& after = last.footprint;
    return fmt::format("| {} | {} | {} | {} | {} | {} | {} |\n", windows.openings(), windows.samples(),
                       pair(before.heapBytes / 1024, after.heapBytes / 1024),
                       pair(before.residentKilobytes, after.residentKilobytes),
                       pair(before.descriptors, after.descriptors), pair(before.threads, after.threads),
                       pair(first.wakeUps, last.wakeUps));
}

/// Whether all promises were kept.
bool run(std::chrono::seconds time, std::uint64_t seed) {
    using Clock = std::chrono::steady_clock;
    const Clock::time_point end = Clock::now() + time;
    OpenedWindows windows(seed);
    int round = 0;
    for (; round < roundsOfWarmUp && windows.failure().empty(); ++round)
        use(windows, round);
    const Measurement first = measure(windows);
    for (; Clock::now() < end && windows.failure().empty(); ++round)
        use(windows, round);
    const Measurement last = measure(windows);
    std::fputs(rowOf(windows, first, last).c_str(), stdout);

    std::vector<std::string> broken = growthBetween(first.footprint, last.footprint);
    if (last.wakeUps > first.wakeUps + 1)
        broken.push_back(fmt::format("wake-ups grew from {} to {}", first.wakeUps, last.wakeUps));
    if (!windows.failure().empty())
        broken.push_back(windows.failure());
    for (const std::string& text : broken)
        std::fputs(fmt::format("windows, seed {}: {}\n", seed, text).c_str(), stderr);
    return broken.empty();
}

} // namespace
} // namespace orvelle::soak

int main(int argumentCount, char** arguments) {
    const QGuiApplication application(argumentCount, arguments);
    if (argumentCount != 3) {
        std::fputs("Usage: orvelle-soak-windows SECONDS SEED\n", stderr);
        return 2;
    }
    std::puts("| Openings | Samples | Heap, first and last KiB | Resident, KiB | Descriptors | Threads | "
              "Wake-ups |\n"
              "| --- | --- | --- | --- | --- | --- | --- |");
    const bool isKept = orvelle::soak::run(std::chrono::seconds(std::atoi(arguments[1])),
                                           std::strtoull(arguments[2], nullptr, 10));
    return isKept ? EXIT_SUCCESS : EXIT_FAILURE;
}
