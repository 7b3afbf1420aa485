#include "report.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>

namespace orvelle::bench {
namespace {

constexpr int targetBytesPerProcess = 150;

bool isLister(const ProgramCost& cost) {
    return cost.name != ourName && cost.name != clockFloorName && cost.name != statFloorName;
}

/// The lister that costs least; null when none was measured.
const ProgramCost* cheapestLister(const Measurement& measurement) {
    const ProgramCost* cheapest = nullptr;
    for (const ProgramCost& cost : measurement.costs) {
        if (isLister(cost) && (cheapest == nullptr || cost.milliseconds < cheapest->milliseconds))
            cheapest = &cost;
    }
    return cheapest;
}

std::string costCell(const Measurement& measurement, const std::string& name) {
    const auto found = std::ranges::find(measurement.costs, name, &ProgramCost::name);
    return found == measurement.costs.end() ? "not measured" : fmt::format("{:.2f}", found->milliseconds);
}

std::string systemCallCell(const Measurement& measurement) {
    if (!measurement.systemCalls)
        return "not measured";
    const SystemCalls& calls = *measurement.systemCalls;
    return fmt::format("{:.0f} of {:.0f} ({:.0f} processes, {:.0f} ran)", calls.perSample, calls.limit(),
                       calls.processes, calls.ran);
}

std::string row(const Measurement& measurement, const std::vector<std::string>& names) {
    std::string text = fmt::format("| {} | {} |", measurement.load, measurement.processes);
    for (const std::string& name : names)
        text += fmt::format(" {} |", costCell(measurement, name));
    const ProgramCost* cheapest = cheapestLister(measurement);
    const double share =
        cheapest == nullptr ? 0 : measurement.costs.front().milliseconds / cheapest->milliseconds;
    text += cheapest == nullptr ? " - |" : fmt::format(" {:.3f} of {} |", share, cheapest->name);
    text += measurement.target > 0 ? fmt::format(" {:.2f} |", measurement.target) : " - |";
    return text + fmt::format(" {} |\n", systemCallCell(measurement));
}

} // namespace

std::string markdown(const std::vector<Measurement>& measurements, const MemoryGrowth& growth,
                     const std::string& conditions) {
    std::vector<std::string> names;
    for (const Measurement& measurement : measurements) {
        for (const ProgramCost& cost : measurement.costs) {
            if (std::ranges::count(names, cost.name) == 0)
                names.push_back(cost.name);
        }
    }
    std::string text = fmt::format("# Cost of one process sample\n\n{}\n\n", conditions);
    text += "Milliseconds of processor time per sample, all programs in the same run, one sample in 3 s "
            "each.\n\n";
    text += fmt::format("| load | processes | {} | share | at most | system calls per sample |\n",
                        fmt::join(names, " | "));
    text += "|" + std::string("---|").append("---|");
    for (std::size_t column = 0; column < names.size() + 3; ++column)
        text += "---|";
    text += '\n';
    for (const Measurement& measurement : measurements)
        text += row(measurement, names);
    return text + '\n' + memoryText(growth);
}

std::string memoryText(const MemoryGrowth& growth) {
    return fmt::format("Memory per further process: {:.0f} bytes of heap, {:.0f} bytes resident (target: at "
                       "most {}), for names of {} characters.\n",
                       growth.heapBytes, growth.residentBytes, targetBytesPerProcess, growth.nameLength);
}

} // namespace orvelle::bench
