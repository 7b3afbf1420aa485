// Runs update cycles on scripted and recorded machines whose parts come and go, checks each of them, and
// compares the process after the warm-up with the process at the end. Prints a row for each machine.

#include "common/scripted_machine.h"
#include "machine_run.h"
#include "tree_machine.h"

#include <QCommandLineParser>
#include <QGuiApplication>
#include <fmt/format.h>

#include <cstdio>

namespace orvelle::soak {
namespace {

constexpr double mostCostGrowth = 1.3;
constexpr std::chrono::milliseconds idleTime{6500};

/// Fewer cycles at either end, where no costs are compared or where each cycle takes long.
constexpr Limits shortLimits{.warmUpCycles = 500, .measuredCycles = 300};
constexpr Limits sanitizedLimits{.warmUpCycles = 100, .measuredCycles = 50, .measurements = 1};

struct Plan {
    std::uint64_t seed = 0;
    std::chrono::duration<double> time{};  ///< for all machines together
    std::optional<std::uint64_t> cycles{}; ///< instead of the time
    std::filesystem::path recordings;
};

/// A machine and its share of the time.
struct PlannedMachine {
    std::string name;
    double share;
    Limits limits;
    std::function<std::unique_ptr<Machine>()> make;
};

std::vector<PlannedMachine> machinesOf(const std::filesystem::path& recordings) {
    using Clock = ScriptedMachine::Clock;
    std::vector<PlannedMachine> machines{
        {"scripted", 0.4, {}, [] { return std::make_unique<ScriptedMachine>(Clock::steadyToo); }},
        {"scripted, wall clock alone", 0.12, {}, [] {
             return std::make_unique<ScriptedMachine>(Clock::wallAlone);
         }}};
    for (const char* name : {"laptop", "desktop", "server", "container-host", "arm-board", "virtual-machine"})
        machines.push_back({name, 0.08, shortLimits, [path = recordings / name / "1"] {
                                return std::make_unique<TreeMachine>(path);
                            }});
    return machines;
}

/// What has grown, in words.
std::vector<std::string> growthOf(const Measurement& first, const Measurement& last) {
    std::vector<std::string> growth = growthBetween(first.footprint, last.footprint);
    if (last.timers > 1)
        growth.push_back(fmt::format("{} timers", last.timers));
    if (!isSanitized && last.microsecondsPerCycle > first.microsecondsPerCycle * mostCostGrowth)
        growth.push_back(fmt::format("the cost of a cycle grew from {:.1f} to {:.1f} us",
                                     first.microsecondsPerCycle, last.microsecondsPerCycle));
    return growth;
}

std::string rowOf(const std::string& name, const RunResult& result) {
    const Measurement& first = result.first;
    const Measurement& last = result.last;
    return fmt::format("| {} | {} | {:.0f} | {:.1f} | {:.1f} | {} | {} | {} | {} | {} | {} |\n", name,
                       result.cycles, static_cast<double>(result.cycles) / result.seconds,
                       first.microsecondsPerCycle, last.microsecondsPerCycle,
                       first.footprint.heapBytes / 1024, last.footprint.heapBytes / 1024,
                       first.footprint.residentKilobytes, last.footprint.residentKilobytes,
                       last.footprint.descriptors, last.footprint.threads);
}

/// Whether the machine kept all promises.
bool tryMachine(const PlannedMachine& planned, const Plan& plan) {
    Limits limits = isSanitized ? sanitizedLimits : planned.limits;
    limits.time = plan.time * planned.share;
    if (plan.cycles)
        limits.cycles = static_cast<std::uint64_t>(static_cast<double>(*plan.cycles) * planned.share);
    const std::unique_ptr<Machine> machine = planned.make();
    MachineRun run(*machine, plan.seed);
    const bool countsWakeUps = !isSanitized && planned.name == "scripted";
    const int firstWakeUps = countsWakeUps ? wakeUpsIn(idleTime) : 0;
    RunResult result = run.run(limits);
    const int lastWakeUps = countsWakeUps ? wakeUpsIn(idleTime) : 0;
    if (countsWakeUps)
        std::fputs(fmt::format("wake-ups in {} ms: {} at first, {} at the end\n", idleTime.count(),
                               firstWakeUps, lastWakeUps)
                       .c_str(),
                   stderr);
    std::vector<std::string> broken = result.failures;
    if (broken.empty())
        broken = growthOf(result.first, result.last);
    if (lastWakeUps > firstWakeUps + 1) // the timer of the sampling fires two or three times
        broken.push_back(fmt::format("wake-ups grew from {} to {}", firstWakeUps, lastWakeUps));
    std::fputs(rowOf(planned.name, result).c_str(), stdout);
    std::fflush(stdout);
    for (const std::string& text : broken)
        std::fputs(
            fmt::format("{}, seed {}, cycle {}: {}\n", planned.name, plan.seed, result.cycles, text).c_str(),
            stderr);
    return broken.empty();
}

std::optional<Plan> planFrom(const QStringList& arguments) {
    QCommandLineParser parser;
    const QCommandLineOption seed(QStringLiteral("seed"), {}, QStringLiteral("number"), QStringLiteral("1"));
    const QCommandLineOption seconds(QStringLiteral("seconds"), {}, QStringLiteral("number"),
                                     QStringLiteral("30"));
    const QCommandLineOption cycles(QStringLiteral("cycles"), {}, QStringLiteral("number"));
    parser.addOptions({seed, seconds, cycles});
    parser.addPositionalArgument(QStringLiteral("recordings"), {});
    parser.process(arguments);
    if (parser.positionalArguments().size() != 1)
        return std::nullopt;
    Plan plan;
    plan.seed = parser.value(seed).toULongLong();
    plan.recordings = parser.positionalArguments().first().toStdString();
    plan.time = std::chrono::duration<double>(parser.value(seconds).toDouble());
    if (parser.isSet(cycles))
        plan.cycles = parser.value(cycles).toULongLong();
    return plan;
}

int run(const QStringList& arguments) {
    const std::optional<Plan> plan = planFrom(arguments);
    if (!plan) {
        std::fputs("Usage: orvelle-soak-cycles [--seed N] [--seconds N | --cycles N] RECORDINGS\n", stderr);
        return 2;
    }
    std::puts(
        "| Machine | Cycles | Cycles per second | Cost, first us | last us | Heap, first KiB | last KiB | "
        "Resident, first KiB | last KiB | Descriptors | Threads |\n"
        "| --- | --- | --- | --- | --- | --- | --- | --- | --- | --- | --- |");
    bool isKept = true;
    for (const PlannedMachine& machine : machinesOf(plan->recordings))
        isKept = tryMachine(machine, *plan) && isKept;
    return isKept ? 0 : 1;
}

} // namespace
} // namespace orvelle::soak

int main(int argumentCount, char** arguments) {
    const QGuiApplication application(argumentCount, arguments);
    return orvelle::soak::run(QGuiApplication::arguments());
}
