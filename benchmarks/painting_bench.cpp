// What painting costs: single charts, and the menu bar as a whole. Start it with QT_QPA_PLATFORM=offscreen.

#include "paint_cost.h"

#include <QGuiApplication>

#include <algorithm>
#include <ctime>
#include <limits>

namespace orvelle::bench {
namespace {

double processorMilliseconds() {
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

} // namespace

double leastMilliseconds(const std::function<void()>& paint) {
    constexpr int rounds = 60;
    constexpr int paintsPerRound = 5;
    double least = std::numeric_limits<double>::infinity();
    for (int round = 0; round < rounds; ++round) {
        const double start = processorMilliseconds();
        for (int count = 0; count < paintsPerRound; ++count)
            paint();
        least = std::min(least, (processorMilliseconds() - start) / paintsPerRound);
    }
    return least;
}

} // namespace orvelle::bench

int main(int argumentCount, char** arguments) {
    const QGuiApplication application(argumentCount, arguments);
    orvelle::bench::printItemCosts();
    orvelle::bench::printChartCosts();
}
