#include "menu_bar/modules.h"

#include "core/system_monitor.h"
#include "menu_bar/battery_menu_bar_item.h"
#include "menu_bar/cpu_menu_bar_item.h"
#include "menu_bar/disk_menu_bar_item.h"
#include "menu_bar/memory_menu_bar_item.h"
#include "menu_bar/network_menu_bar_item.h"
#include "menu_bar/sensor_menu_bar_item.h"

namespace orvelle {

namespace {

/// Calls `use` with the module's status item.
template <class Use>
auto withItem(ModuleId module, const ModuleContext& context, Use use) {
    switch (module) {
#define ORVELLE_MODULE(id, Type, ...)                                                                        \
    case ModuleId::id:                                                                                       \
        return use(Type##MenuBarItem(context.monitor.id(), context.settings, context.themes));
        ORVELLE_MODULES(ORVELLE_MODULE)
#undef ORVELLE_MODULE
    }
    Q_UNREACHABLE();
}

} // namespace

ItemScene makeScene(ModuleId module, const ModuleContext& context) {
    return withItem(module, context, [](const auto& item) { return item.body(); });
}

IconScene makeIcon(ModuleId module, const ModuleContext& context) {
    return withItem(module, context, [](const auto& item) { return item.icon(); });
}

} // namespace orvelle
