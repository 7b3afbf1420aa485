// crowd sleepers|busy|short-lived COUNT: a crowd of processes until SIGTERM ends it. Sleepers never wake,
// busy ones never rest, and of short-lived ones COUNT come and go every second. Prints a line when the crowd
// is there.

#include "helpers.h"

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <iostream>
#include <string_view>
#include <thread>

namespace {

sigset_t endSignals() {
    sigset_t signals;
    ::sigemptyset(&signals);
    ::sigaddset(&signals, SIGTERM);
    return signals;
}

bool hasBeenEnded(const sigset_t& signals) {
    constexpr timespec noTime{};
    return ::sigtimedwait(&signals, nullptr, &noTime) == SIGTERM;
}

/// In hundred portions a second, so that a slow machine falls behind rather than starting all at once.
void keepStarting(int perSecond, const sigset_t& signals) {
    constexpr int portionsPerSecond = 100;
    while (!hasBeenEnded(signals)) {
        const auto next =
            std::chrono::steady_clock::now() + std::chrono::milliseconds(1000 / portionsPerSecond);
        for (int started = 0; started < perSecond / portionsPerSecond; ++started)
            orvelle::bench::startShortProcess();
        std::this_thread::sleep_until(next);
    }
}

} // namespace

int main(int argumentCount, char** arguments) {
    const std::string_view kind = argumentCount == 3 ? arguments[1] : "";
    const int count = argumentCount == 3 ? std::atoi(arguments[2]) : 0;
    const sigset_t signals = endSignals();
    orvelle::bench::Helpers helpers;
    if (kind == "sleepers") {
        if (orvelle::bench::roomForProcesses() < static_cast<std::size_t>(count)) {
            std::cerr << "this machine has no room for " << count << " processes\n";
            return 77;
        }
        helpers.addSleepers(static_cast<std::size_t>(count));
    } else if (kind == "busy") {
        helpers.addBusy(static_cast<std::size_t>(count));
    } else if (kind != "short-lived") {
        std::cerr << "Usage: orvelle-soak-crowd sleepers|busy|short-lived COUNT\n";
        return 2;
    }
    ::sigprocmask(SIG_BLOCK, &signals, nullptr); // after the helpers have begun: they must not inherit it
    std::cout << "ready" << std::endl;
    if (kind == "short-lived")
        keepStarting(count, signals);
    else
        while (!hasBeenEnded(signals))
            std::this_thread::sleep_for(std::chrono::milliseconds(100));
    return 0;
}
