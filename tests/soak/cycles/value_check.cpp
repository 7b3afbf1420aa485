#include "value_check.h"

#include <algorithm>

namespace orvelle::soak {
namespace {

constexpr double largest = 1e18; // far above any time, current or load

void checkCores(const CPUMonitor& cpu, const std::vector<CoreTicks>& ticks, Failures& failures) {
    failures.require(cpu.coreUsages().size() == static_cast<qsizetype>(ticks.size()),
                     "wrong number of cores");
    double sum = 0;
    for (const CPUCoreUsage& core : cpu.coreUsages()) {
        const double whole = core.user + core.system + core.idle;
        const bool isShare =
            isBetween(core.user, 0, 1) && isBetween(core.system, 0, 1) && isBetween(core.idle, 0, 1);
        failures.require(isShare && (whole == 0 || isSame(whole, 1)), "shares of a core's time", whole);
        sum += core.user + core.system;
    }
    const double mean = sum / static_cast<double>(std::max<std::size_t>(ticks.size(), 1));
    failures.require(isSame(cpu.totalUsage(), mean), "mean usage", cpu.totalUsage());
}

void checkVolumes(const DiskMonitor& disk, const Answers& answers, Failures& failures) {
    const auto mounted = answers.volumes.value_or(std::vector<MountedVolume>{});
    const auto shown = std::ranges::count_if(
        mounted, [](const MountedVolume& volume) { return volume.isLocal && volume.totalBytes > 0; });
    failures.require(disk.volumes().size() == shown, "wrong number of volumes",
                     double(disk.volumes().size()));
    for (const DiskVolumeInfo& volume : disk.volumes()) {
        failures.require(isBetween(usedFraction(volume), 0, 1), "used share of a volume",
                         usedFraction(volume));
        failures.require(volume.freeSpace <= volume.totalSpace, "a volume has more free space than space");
    }
}

} // namespace

void ValueCheck::check(SystemMonitor& monitor, const Answers& answers, Failures& failures) {
    checkProcessor(monitor.cpu(), answers, failures);
    checkMemory(monitor.memory(), answers, failures);
    checkVolumes(monitor.disk(), answers, failures);
    checkBattery(monitor.battery(), answers, failures);
    checkSensors(monitor.sensor(), answers, failures);
}

void ValueCheck::checkProcessor(const CPUMonitor& cpu, const Answers& answers, Failures& failures) {
    if (answers.ticks)
        checkCores(cpu, *answers.ticks, failures);
    for (const double usage : {cpu.totalUsage(), cpu.userUsage(), cpu.systemUsage()})
        failures.require(isBetween(usage, 0, 1), "usage", usage);
    failures.require(isSame(cpu.totalUsage(), cpu.userUsage() + cpu.systemUsage()), "sum of usages",
                     cpu.totalUsage());
    const auto load = answers.loadAverages.value_or(std::array<double, 3>{});
    failures.require(cpu.loadAverage1() == load[0] && cpu.loadAverage5() == load[1] &&
                         cpu.loadAverage15() == load[2],
                     "load averages", cpu.loadAverage1());
    for (const double average : {cpu.loadAverage1(), cpu.loadAverage5(), cpu.loadAverage15()})
        failures.require(isBetween(average, 0, largest), "load average", average);
    failures.require(isBetween(cpu.uptime(), 0, largest), "time since the start", cpu.uptime());
    const double usage = cpu.totalUsage();
    m_usage.follow(cpu.usageHistory(), answers.ticks ? &usage : nullptr, failures);
}

void ValueCheck::checkMemory(const MemoryMonitor& memory, const Answers& answers, Failures& failures) {
    const MemoryMonitorInfo& info = memory.info();
    const double pressure = pressureFraction(info);
    failures.require(info.used <= info.total, "more memory is used than there is");
    failures.require(info.swapUsed <= info.swapTotal, "more swap is used than there is");
    failures.require(isBetween(usedFraction(info), 0, 1), "used share of memory", usedFraction(info));
    failures.require(isBetween(pressure, 0, 1), "pressure", pressure);
    m_pressure.follow(memory.pressureHistory(), answers.memory ? &pressure : nullptr, failures);
}

void ValueCheck::checkBattery(const BatteryMonitor& battery, const Answers& answers, Failures& failures) {
    const BatteryInfo& info = battery.battery();
    const bool hasSource = answers.powerSources && !answers.powerSources->empty();
    const double charge = static_cast<double>(info.currentCapacity) / 100;
    failures.require(hasSource || !info.isPresent, "a battery is present that no source gives");
    failures.require(isBetween(charge, 0, 1), "charge", charge);
    failures.require(info.timeToEmpty >= -1 && info.timeToFull >= -1, "time until empty or full");
    failures.require(isBetween(info.health, 0, largest), "health", info.health);
    failures.require(isBetween(info.voltage, 0, largest), "voltage", info.voltage);
    failures.require(isBetween(info.wattage, 0, largest), "power", info.wattage);
    failures.require(isBetween(info.amperage, -largest, largest), "current", info.amperage);
    failures.require(isBetween(info.temperature, -274, largest), "temperature of the battery",
                     info.temperature);
    failures.require(info.cycleCount >= 0 && info.designCapacity >= 0 && info.maxCapacity >= 0, "capacities");
    m_charge.follow(battery.chargeHistory(), hasSource ? &charge : nullptr, failures);
}

void ValueCheck::checkSensors(const SensorMonitor& sensor, const Answers& answers, Failures& failures) {
    m_lastCPUTemperature = answers.cpuTemperature.value_or(m_lastCPUTemperature);
    m_lastGPUTemperature = answers.gpuTemperature.value_or(m_lastGPUTemperature);
    failures.require(sensor.cpuTemperature() == m_lastCPUTemperature, "CPU temperature",
                     sensor.cpuTemperature());
    failures.require(sensor.gpuTemperature() == m_lastGPUTemperature, "GPU temperature",
                     sensor.gpuTemperature());
    failures.require(std::size_t(sensor.sensors().size()) == answers.sensors.size(),
                     "wrong number of sensors");
    failures.require(std::size_t(sensor.fans().size()) == answers.fanSpeeds.size(), "wrong number of fans");
    for (const TemperatureSensor& one : sensor.sensors())
        failures.require(isPlausibleTemperature(one.value), "temperature", one.value);
    for (const FanInfo& fan : sensor.fans())
        failures.require(fan.speed > 0 && fan.speed <= maximumFanSpeed, "speed of a fan", double(fan.speed));
    m_cpuTemperature.follow(sensor.cpuTempHistory(), answers.cpuTemperature ? &m_lastCPUTemperature : nullptr,
                            failures);
    m_gpuTemperature.follow(sensor.gpuTempHistory(), answers.gpuTemperature ? &m_lastGPUTemperature : nullptr,
                            failures);
}

} // namespace orvelle::soak
