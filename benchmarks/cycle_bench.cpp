// Measures a whole update cycle without the processes: of the recorded machines and of this one.

#include "core/system_monitor.h"
#include "platform/host.h"
#include "platform/replay/fake_sources.h"
#include "settings/settings_store.h"
#include "system_calls.h"

#include <QCoreApplication>
#include <QTemporaryDir>
#include <fmt/format.h>

#include <algorithm>
#include <ctime>
#include <fstream>
#include <iostream>
#include <set>
#include <thread>
#include <unistd.h>

namespace orvelle::bench {
namespace {

namespace fs = std::filesystem;

constexpr int cyclesInARow = 500;
constexpr int cyclesAfterPauses = 40;
constexpr std::chrono::milliseconds pauseBetweenCycles{100};
constexpr double targetMicroseconds = 1000;
constexpr double targetSystemCalls = 20;

double threadMicroseconds() {
    timespec time{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e6 + static_cast<double>(time.tv_nsec) / 1e3;
}

double median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::ranges::nth_element(values, middle);
    return *middle;
}

/// The processor time of each of `count` cycles, in microseconds.
std::vector<double> timesOf(SystemMonitor& monitor, int count, std::chrono::milliseconds pause) {
    std::vector<double> times;
    for (int cycle = 0; cycle < count; ++cycle) {
        std::this_thread::sleep_for(pause);
        const double start = threadMicroseconds();
        monitor.updateCycle();
        times.push_back(threadMicroseconds() - start);
    }
    return times;
}

/// The sources with a process source that answers nothing at no cost.
MachineSources withoutProcesses(MachineSources sources) {
    sources.process = std::make_unique<FakeProcessSource>();
    return sources;
}

std::string measuredRow(const std::string& name, MachineSources sources) {
    const QTemporaryDir folder;
    const SettingsStore settings(folder.filePath(QStringLiteral("orvelle.conf")));
    SystemMonitor monitor(withoutProcesses(std::move(sources)), settings);
    static_cast<void>(timesOf(monitor, 1, {})); // the first one opens the files
    const std::vector<double> inARow = timesOf(monitor, cyclesInARow, {});
    const std::vector<double> afterPauses = timesOf(monitor, cyclesAfterPauses, pauseBetweenCycles);
    return fmt::format("| {} | {:.0f} | {:.0f} | {:.0f} | {:.0f} |\n", name, median(inARow),
                       *std::ranges::max_element(inARow), median(afterPauses),
                       *std::ranges::max_element(afterPauses));
}

void sampleThisMachine(int cycles) {
    const QTemporaryDir folder;
    const SettingsStore settings(folder.filePath(QStringLiteral("orvelle.conf")));
    SystemMonitor monitor(withoutProcesses(makeHostSources()), settings);
    for (int cycle = 0; cycle < cycles; ++cycle)
        monitor.updateCycle();
}

/// Calls of one cycle on this machine, on average: a run of many less one of a single cycle, which leaves the
/// start out. Many are a multiple of the samples between two searches for devices.
std::string systemCallText(const std::string& self, const fs::path& folder) {
    constexpr int more = 100;
    const auto one = countSystemCalls({self, "host", "1"}, folder / "strace.txt");
    const auto many = countSystemCalls({self, "host", std::to_string(1 + more)}, folder / "strace.txt");
    if (!one || !many)
        return "System calls of one cycle on this machine: not measured, strace is needed.\n";
    return fmt::format("System calls of one cycle on this machine: {:.1f} (target: at most {:.0f}).\n",
                       (*many - *one) / more, targetSystemCalls);
}

int measureEverything(const std::string& self, const fs::path& fixtures, const fs::path& folder) {
    fs::create_directories(folder);
    std::string text = fmt::format(
        "# Cost of one update cycle without processes\n\n"
        "{} processors. Processor time in microseconds (target on the server: under {:.0f}). The recorded "
        "machines are trees of files, of which more is read each time than of a running system.\n\n"
        "| machine | in a row: median | longest | after {} ms: median | longest |\n|---|---|---|---|---|\n",
        ::sysconf(_SC_NPROCESSORS_ONLN), targetMicroseconds, pauseBetweenCycles.count());
    std::set<fs::path> machines;
    for (const fs::directory_entry& entry : fs::directory_iterator(fixtures)) {
        if (entry.is_directory())
            machines.insert(entry.path());
    }
    for (const fs::path& machine : machines)
        text +=
            measuredRow(machine.filename().string(), makeTreeSources(machine / "1", FakeClock().reader()));
    text += measuredRow("this machine", makeHostSources());
    text += '\n' + systemCallText(self, folder);
    std::ofstream(folder / "cycle.md") << text;
    std::cout << text;
    return 0;
}

int run(const std::vector<std::string>& arguments) {
    if (arguments.size() == 2 && arguments[0] == "host") {
        sampleThisMachine(std::stoi(arguments[1]));
        return 0;
    }
    if (arguments.size() == 3 && arguments[0] == "all")
        return measureEverything(fs::read_symlink("/proc/self/exe").string(), arguments[1], arguments[2]);
    std::cerr << "Usage: orvelle-bench-cycle all FIXTURES FOLDER\n";
    return 2;
}

} // namespace
} // namespace orvelle::bench

int main(int argumentCount, char** arguments) {
    const QCoreApplication application(argumentCount, arguments);
    return orvelle::bench::run({arguments + 1, arguments + argumentCount});
}
