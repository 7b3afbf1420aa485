#include "helpers.h"
#include "measured_program.h"
#include "platform/linux/process_files.h"
#include "report.h"
#include "samplers.h"
#include "system_calls.h"

#include <fmt/format.h>

#include <algorithm>
#include <fstream>
#include <functional>
#include <iostream>
#include <memory>
#include <thread>
#include <unistd.h>

namespace orvelle::bench {
namespace {

using Programs = std::vector<std::unique_ptr<MeasuredProgram>>;
using Output = MeasuredProgram::Output;

constexpr int measuredSeconds = 18;
constexpr double measuredSamples = measuredSeconds / 3.0;
constexpr std::size_t manySleepers = 5000;
constexpr std::size_t mostSleepers = 20000;

struct Load {
    std::string name;
    double target = 0;
    std::function<void(Helpers&)> start;
};

const std::vector<Load>& loads() {
    static const std::vector<Load> all{
        {"natural", 0.5, [](Helpers&) {}},
        {"1000 sleepers", 0.15, [](Helpers& helpers) { helpers.addSleepers(1000); }},
        {"1000, a fifth wakes every second", 0.30,
         [](Helpers& helpers) {
             helpers.addSleepers(800);
             helpers.addWakers(200);
         }},
        {"5000 sleepers", 0.12, [](Helpers& helpers) { helpers.addSleepers(manySleepers); }},
        {"20000 sleepers", 0.10,
         [](Helpers& helpers) { helpers.addSleepers(std::min(roomForProcesses(), mostSleepers)); }},
        {"one process of 2000 threads", 0, [](Helpers& helpers) { helpers.addThreadedProcess(2000); }},
    };
    return all;
}

/// A second that passes while every terminal is read and a process comes and goes.
void passSecond(const Programs& programs) {
    startShortProcess();
    for (int part = 0; part < 10; ++part) {
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
        for (const auto& program : programs)
            program->drain();
    }
}

/// Starts every program, each a third of a second after the other so that no two sample at once.
Programs startPrograms(const std::string& self, const std::filesystem::path& folder) {
    Programs programs;
    const auto start = [&programs](const std::string& name, const std::vector<std::string>& command,
                                   Output output) {
        programs.push_back(std::make_unique<MeasuredProgram>(name, command, output));
        std::this_thread::sleep_for(std::chrono::milliseconds(400));
    };
    start(ourName, {self, "sample"}, Output::discarded);
    start(clockFloorName, {self, "clocks"}, Output::discarded);
    start(statFloorName, {self, "stat-files"}, Output::discarded);
    if (findCommand("top")) {
        start("top -b", {"top", "-b", "-d", "3"}, Output::discarded);
        start("top", {"top", "-d", "3"}, Output::terminal);
    }
    if (findCommand("btop")) {
        std::filesystem::create_directories(folder / "btop");
        std::ofstream(folder / "btop/btop.conf") << "update_ms=3000\nshown_boxes=\"proc\"\n";
        start("btop", {"btop", "--utf-force"}, Output::terminal);
    }
    return programs;
}

std::vector<ProgramCost> measureCosts(const std::string& self, const std::filesystem::path& folder) {
    const Programs programs = startPrograms(self, folder);
    for (int second = 0; second < 4; ++second) // the first samples cost more and are not measured
        passSecond(programs);
    std::vector<std::optional<std::uint64_t>> before;
    for (const auto& program : programs)
        before.push_back(program->nanoseconds());
    for (int second = 0; second < measuredSeconds; ++second)
        passSecond(programs);
    std::vector<ProgramCost> costs;
    for (std::size_t index = 0; index < programs.size(); ++index) {
        const std::optional<std::uint64_t>& earlier = before[index];
        const std::optional<std::uint64_t> after = programs[index]->nanoseconds();
        if (!earlier || !after)
            continue;
        const auto nanoseconds = static_cast<double>(*after - *earlier);
        costs.push_back(
            {.name = programs[index]->name(), .milliseconds = nanoseconds / measuredSamples / 1e6});
    }
    return costs;
}

/// All calls of a run of our sampler.
std::optional<double> countCalls(const std::string& self, const std::filesystem::path& folder, int samples) {
    return countSystemCalls({self, "sample", std::to_string(samples), (folder / "counts.txt").string()},
                            folder / "strace.txt");
}

/// A run of many samples less one of a single sample leaves what a sample costs without the start.
std::optional<SystemCalls> measureSystemCalls(const std::string& self, const std::filesystem::path& folder) {
    constexpr int more = 10;
    const std::optional<double> one = countCalls(self, folder, 1);
    const std::optional<double> many = countCalls(self, folder, 1 + more);
    double listed = 0;
    double ran = 0;
    if (!one || !many || !(std::ifstream(folder / "counts.txt") >> listed >> ran))
        return std::nullopt;
    return SystemCalls{.perSample = (*many - *one) / more, .processes = listed / more, .ran = ran / more};
}

std::string conditions() {
    std::ifstream loadAverages("/proc/loadavg");
    std::string one;
    std::string five;
    loadAverages >> one >> five;
    return fmt::format("{} processors; load average at the start {} (1 minute), {} (5 minutes).",
                       ::sysconf(_SC_NPROCESSORS_ONLN), one, five);
}

std::size_t processCount() {
    linux_platform::ProcessFiles files("/");
    return files.open() ? files.list().size() : 0;
}

/// Runs every load whose name contains `chosenLoads`, and writes the tables to `folder/process.md` and to the
/// standard output.
int measureEverything(const std::string& self, const std::filesystem::path& folder,
                      const std::string& chosenLoads) {
    std::filesystem::create_directories(folder);
    ::setenv("XDG_CONFIG_HOME", folder.c_str(), 1); // nobody's own configuration of the other programs
    ::setenv("HOME", folder.c_str(), 1);
    ::setenv("TERM", "xterm-256color", 1);
    ::setenv("LC_ALL", "C.UTF-8", 1);
    const std::string machine = conditions();
    const MemoryGrowth growth = measureMemoryGrowth(manySleepers);
    std::vector<Measurement> measurements;
    for (const Load& load : loads()) {
        if (load.name.find(chosenLoads) == std::string::npos)
            continue;
        std::cerr << "measuring: " << load.name << '\n';
        Helpers helpers;
        load.start(helpers);
        Measurement measurement{.load = load.name,
                                .target = load.target,
                                .processes = processCount(),
                                .costs = {},
                                .systemCalls = {}};
        measurement.costs = measureCosts(self, folder);
        measurement.systemCalls = measureSystemCalls(self, folder);
        measurements.push_back(std::move(measurement));
    }
    const std::string text = markdown(measurements, growth, machine);
    std::ofstream(folder / "process.md") << text;
    std::cout << text;
    return 0;
}

int run(const std::vector<std::string>& arguments) {
    const std::string self = std::filesystem::read_symlink("/proc/self/exe");
    if (arguments.size() == 3 && arguments[0] == "sample") {
        const Rhythm rhythm{.samples = std::stoi(arguments[1]), .interval = std::chrono::milliseconds(500)};
        const SampleCounts counts = sampleProcesses(rhythm);
        std::ofstream(arguments[2]) << counts.listed << ' ' << counts.ran << '\n';
        return 0;
    }
    if ((arguments.size() == 2 || arguments.size() == 3) && arguments[0] == "all")
        return measureEverything(self, arguments[1], arguments.size() == 3 ? arguments[2] : "");
    if (arguments == std::vector<std::string>{"memory"}) {
        std::cout << memoryText(measureMemoryGrowth(manySleepers));
        return 0;
    }
    if (arguments == std::vector<std::string>{"sample"})
        sampleProcesses({});
    else if (arguments == std::vector<std::string>{"clocks"})
        askOnlyClocks({});
    else if (arguments == std::vector<std::string>{"stat-files"})
        readOnlyStatFiles({});
    std::cerr << "Usage: orvelle-bench-process all FOLDER [PART-OF-A-LOAD] | memory\n";
    return 2;
}

} // namespace
} // namespace orvelle::bench

int main(int argumentCount, char** arguments) {
    return orvelle::bench::run({arguments + 1, arguments + argumentCount});
}
