#include "probe/following.h"

#include "core/system_monitor.h"
#include "platform/host.h"

#include <algorithm>
#include <chrono>

namespace orvelle {
namespace {

using std::chrono::steady_clock;
using Result = OutputStream::Result;

/// How long the first line waits at most.
constexpr double firstMeasurementSeconds = 0.5;

steady_clock::duration inClockUnits(double seconds) {
    return std::chrono::duration_cast<steady_clock::duration>(std::chrono::duration<double>(seconds));
}

Result followRecording(const FollowPlan& plan, const SettingsStore& settings, const OutputStream& output,
                       const LineMaker& makeLine) {
    RecordedMachine machine(plan.roots, plan.intervalSeconds, settings);
    Result result = Result::written;
    while (result == Result::written && machine.sampleNext())
        result = output.write(makeLine(machine.monitor()) + '\n');
    return result;
}

Result followThisMachine(const FollowPlan& plan, const SettingsStore& settings, const OutputStream& output,
                         const LineMaker& makeLine) {
    const std::unique_ptr<SystemMonitor> monitor = unsampledMonitor(settings);
    monitor->updateCycle();
    steady_clock::time_point due =
        steady_clock::now() + inClockUnits(std::min(plan.intervalSeconds, firstMeasurementSeconds));
    while (output.waitUntil(due)) {
        monitor->updateCycle();
        if (const Result result = output.write(makeLine(*monitor) + '\n'); result != Result::written)
            return result;
        // After a pause of the whole machine the lines that were missed are not made up for.
        due = std::max(due + inClockUnits(plan.intervalSeconds), steady_clock::now());
    }
    return Result::readerGone;
}

} // namespace

FollowEnd follow(const FollowPlan& plan, const SettingsStore& settings, const OutputStream& output,
                 const LineMaker& makeLine) {
    if (const auto unreadable = firstUnreadable(plan.roots))
        return *unreadable;
    return plan.roots.isEmpty() ? followThisMachine(plan, settings, output, makeLine)
                                : followRecording(plan, settings, output, makeLine);
}

std::unique_ptr<SystemMonitor> unsampledMonitor(const SettingsStore& settings) {
    return std::make_unique<SystemMonitor>(makeHostSources(), settings);
}

} // namespace orvelle
