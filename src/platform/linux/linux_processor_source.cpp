#include "platform/linux/linux_processor_source.h"

#include "platform/linux/text.h"

#include <algorithm>

namespace orvelle::linux_platform {
namespace {

/// The counters of one line after its label: user nice system idle iowait irq softirq steal, in clock ticks.
/// Old kernels stop early, so what is missing counts as 0.
std::array<std::uint64_t, 8> takeCounters(std::string_view line) {
    std::array<std::uint64_t, 8> counters{};
    for (std::uint64_t& counter : counters)
        counter = takeNumber<std::uint64_t>(line).value_or(0);
    return counters;
}

CoreTicks ticksFrom(std::string_view line) {
    const auto [user, nice, system, idle, ioWait, irq, softIrq, steal] = takeCounters(line);
    const auto bounded = [](std::uint64_t ticks) { return std::min(ticks, CoreTicks::maximumTicks); };
    return {.user = bounded(user),
            .system = bounded(saturatingAdd(saturatingAdd(system, irq), softIrq)),
            .idle = bounded(saturatingAdd(saturatingAdd(idle, ioWait), steal)),
            .nice = bounded(nice)};
}

/// More than any scheduler could run; also keeps out the largest double, which stands for what no double
/// holds.
constexpr double maximumLoad = 1e9;

/// Nothing for a time before 1970 or beyond the year 9999.
std::optional<std::int64_t> plausibleBootTime(std::optional<std::int64_t> seconds) {
    constexpr std::int64_t endOfYear9999 = 253402300799;
    return seconds && *seconds >= 0 && *seconds <= endOfYear9999 ? seconds : std::nullopt;
}

/// `cpu0`, `cpu17`, but not `cpu`, which sums them all.
bool isCoreLabel(std::string_view label) {
    return label.size() > 3 && label.starts_with("cpu") && label[3] >= '0' && label[3] <= '9';
}

} // namespace

std::optional<ProcStat> parseProcStat(std::string_view text) {
    ProcStat stat;
    while (!text.empty()) {
        std::string_view line = takeLine(text);
        const std::string_view label = takeWord(line);
        if (isCoreLabel(label))
            stat.cores.push_back(ticksFrom(line));
        else if (label == "btime")
            stat.bootTime = plausibleBootTime(takeNumber<std::int64_t>(line));
    }
    if (stat.cores.empty())
        return std::nullopt;
    return stat;
}

std::optional<std::array<double, 3>> parseLoadAverages(std::string_view text) {
    std::array<double, 3> averages{};
    for (double& average : averages) {
        const std::optional<double> value = takeNumber<double>(text);
        if (!value || !(*value >= 0) || *value > maximumLoad)
            return std::nullopt;
        average = *value;
    }
    return averages;
}

LinuxProcessorSource::LinuxProcessorSource(const std::filesystem::path& root)
    : m_stat(root / "proc/stat", KeptFile::Layout::single)
    , m_loadAverages(root / "proc/loadavg", KeptFile::Layout::single) {}

std::optional<std::vector<CoreTicks>> LinuxProcessorSource::readTicks() {
    m_bootTime.reset();
    const std::optional<std::string_view> text = m_stat.read();
    std::optional<ProcStat> stat = text ? parseProcStat(*text) : std::nullopt;
    if (!stat)
        return std::nullopt;
    m_bootTime = stat->bootTime;
    return std::move(stat->cores);
}

std::optional<std::array<double, 3>> LinuxProcessorSource::readLoadAverages() {
    const std::optional<std::string_view> text = m_loadAverages.read();
    return text ? parseLoadAverages(*text) : std::nullopt;
}

} // namespace orvelle::linux_platform
