#include "menu_bar/modules.h"

#include "core/system_monitor.h"
#include "menu_bar/battery_menu_bar_item.h"
#include "menu_bar/cpu_menu_bar_item.h"
#include "menu_bar/disk_menu_bar_item.h"
#include "menu_bar/memory_menu_bar_item.h"
#include "menu_bar/network_menu_bar_item.h"
#include "menu_bar/sensor_menu_bar_item.h"
#include "settings/settings_store.h"
#include "theme/theme_manager.h"

#include <fmt/format.h>

#include <array>

namespace orvelle {
namespace {

std::string describeCPU(SystemMonitor& monitor) {
    const CPUMonitor& cpu = monitor.cpu();
    return fmt::format("{:.1f}% (user {:.1f}%, system {:.1f}%) on {} cores, load {:.2f} {:.2f} {:.2f}",
                       cpu.totalUsage() * 100, cpu.userUsage() * 100, cpu.systemUsage() * 100,
                       cpu.coreUsages().size(), cpu.loadAverage1(), cpu.loadAverage5(), cpu.loadAverage15());
}

std::string describeMemory(SystemMonitor& monitor) {
    constexpr double bytesPerMebibyte = 1 << 20;
    const MemoryMonitor::MemoryInfo& info = monitor.memory().info();
    return fmt::format("{:.1f}% used, {:.0f} of {:.0f} MiB, pressure {:.1f}%", usedFraction(info) * 100,
                       static_cast<double>(info.used) / bytesPerMebibyte,
                       static_cast<double>(info.total) / bytesPerMebibyte, pressureFraction(info) * 100);
}

std::string describeNetwork(SystemMonitor& monitor) {
    const NetworkMonitor& network = monitor.network();
    return fmt::format("{:.0f} B/s down, {:.0f} B/s up on {} interfaces, address {}",
                       network.totalDownloadSpeed(), network.totalUploadSpeed(), network.interfaces().size(),
                       network.primaryIPv4().toStdString());
}

std::string describeDisk(SystemMonitor& monitor) {
    const DiskMonitor& disk = monitor.disk();
    return fmt::format("{:.0f} B/s read, {:.0f} B/s written, {} volumes", disk.diskIO().readSpeed,
                       disk.diskIO().writeSpeed, disk.volumes().size());
}

std::string describeBattery(SystemMonitor& monitor) {
    const BatteryMonitor::BatteryInfo& battery = monitor.battery().battery();
    if (!battery.isPresent)
        return "none";
    return fmt::format("{}%, {}, {:.1f} W", battery.currentCapacity, battery.powerSource.toStdString(),
                       battery.wattage);
}

std::string describeSensors(SystemMonitor& monitor) {
    const SensorMonitor& sensor = monitor.sensor();
    return fmt::format("CPU {:.0f}, GPU {:.0f} degrees Celsius, {} sensors, {} fans", sensor.cpuTemperature(),
                       sensor.gpuTemperature(), sensor.sensors().size(), sensor.fans().size());
}

/// The scene of a menu-bar item of type `Item` for the monitor that `monitorOf` names.
template <class Item, auto monitorOf>
ItemScene makeScene(const ModuleContext& context) {
    return Item((context.monitor.*monitorOf)(), context.settings, context.themes).body();
}

} // namespace

std::span<const Module> modules() {
    static constexpr std::array table{
        Module{QLatin1StringView("cpu"), 60, &SettingsStore::showCPU,
               makeScene<CPUMenuBarItem, &SystemMonitor::cpu>, describeCPU},
        Module{QLatin1StringView("memory"), 70, &SettingsStore::showMemory,
               makeScene<MemoryMenuBarItem, &SystemMonitor::memory>, describeMemory},
        Module{QLatin1StringView("network"), 90, &SettingsStore::showNetwork,
               makeScene<NetworkMenuBarItem, &SystemMonitor::network>, describeNetwork},
        Module{QLatin1StringView("disk"), 45, &SettingsStore::showDisk,
               makeScene<DiskMenuBarItem, &SystemMonitor::disk>, describeDisk},
        Module{QLatin1StringView("battery"), 65, &SettingsStore::showBattery,
               makeScene<BatteryMenuBarItem, &SystemMonitor::battery>, describeBattery},
        Module{QLatin1StringView("sensor"), 50, &SettingsStore::showSensors,
               makeScene<SensorMenuBarItem, &SystemMonitor::sensor>, describeSensors},
    };
    return table;
}

} // namespace orvelle
