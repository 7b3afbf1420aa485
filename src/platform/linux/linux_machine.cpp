#include "platform/host.h"
#include "platform/linux/linux_battery_source.h"
#include "platform/linux/linux_disk_source.h"
#include "platform/linux/linux_memory_source.h"
#include "platform/linux/linux_network_source.h"
#include "platform/linux/linux_process_source.h"
#include "platform/linux/linux_processor_source.h"
#include "platform/linux/linux_sensor_source.h"
#include "platform/linux/process_clock.h"

#include <unistd.h>

namespace orvelle {
namespace {

using namespace linux_platform;

/// What the running system says of itself; `otherwise` should it not know.
std::uint64_t hostSetting(int name, std::uint64_t otherwise) {
    const long value = ::sysconf(name);
    return value > 0 ? static_cast<std::uint64_t>(value) : otherwise;
}

/// The units of a machine that is only a tree of files are the usual ones.
constexpr ProcessUnits usualUnits;

ProcessUnits hostUnits() {
    return {.pageSize = hostSetting(_SC_PAGESIZE, usualUnits.pageSize),
            .ticksPerSecond = hostSetting(_SC_CLK_TCK, usualUnits.ticksPerSecond)};
}

MachineSources makeSources(const std::filesystem::path& root, WallClock now, ProcessTimesFrom timesFrom,
                           const ProcessUnits& units) {
    return {.now = std::move(now),
            .processor = std::make_unique<LinuxProcessorSource>(root),
            .memory = std::make_unique<LinuxMemorySource>(root, units.pageSize),
            .disk = std::make_unique<LinuxDiskSource>(root),
            .network = std::make_unique<LinuxNetworkSource>(root),
            .battery = std::make_unique<LinuxBatterySource>(root),
            .sensor = std::make_unique<LinuxSensorSource>(root),
            .process = std::make_unique<LinuxProcessSource>(root, timesFrom, units)};
}

} // namespace

MachineSources makeTreeSources(const std::filesystem::path& root, WallClock now) {
    return makeSources(root, std::move(now), ProcessTimesFrom::statFiles, usualUnits);
}

MachineSources makeHostSources() {
    const std::filesystem::path root = "/";
    const ProcessTimesFrom timesFrom =
        clocksTellOfListedProcesses(root) ? ProcessTimesFrom::processClocks : ProcessTimesFrom::statFiles;
    MachineSources sources = makeSources(root, std::chrono::system_clock::now, timesFrom, hostUnits());
    sources.steadyNow = kernelClock(CLOCK_BOOTTIME); // counts while the machine sleeps, too
    return sources;
}

} // namespace orvelle
