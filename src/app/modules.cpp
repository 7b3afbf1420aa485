#include "app/modules.h"

#include "app/menu_bar_items/cpu_menu_bar_item.h"
#include "app/menu_bar_items/memory_menu_bar_item.h"
#include "core/system_monitor.h"
#include "settings/settings_store.h"
#include "settings/theme_manager.h"

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

/// A menu-bar item of type `Item` for the monitor that `monitorOf` names.
template <class Item, auto monitorOf>
std::shared_ptr<const StatusItemView> makeItem(const ModuleContext& context) {
    return std::make_shared<Item>((context.monitor.*monitorOf)(), context.settings, context.themes);
}

} // namespace

std::span<const Module> modules() {
    static constexpr std::array table{
        Module{QLatin1StringView("cpu"), 60, &SettingsStore::showCPU,
               makeItem<CPUMenuBarItem, &SystemMonitor::cpu>, describeCPU},
        Module{QLatin1StringView("memory"), 70, &SettingsStore::showMemory,
               makeItem<MemoryMenuBarItem, &SystemMonitor::memory>, describeMemory},
    };
    return table;
}

} // namespace orvelle
