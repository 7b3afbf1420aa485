#include "menu_bar/modules.h"

#include "core/system_monitor.h"
#include "menu_bar/battery_menu_bar_item.h"
#include "menu_bar/cpu_menu_bar_item.h"
#include "menu_bar/disk_menu_bar_item.h"
#include "menu_bar/memory_menu_bar_item.h"
#include "menu_bar/network_menu_bar_item.h"
#include "menu_bar/sensor_menu_bar_item.h"

namespace orvelle {

ItemScene makeScene(ModuleId module, const ModuleContext& context) {
    switch (module) {
#define ORVELLE_MODULE(id, Type, ...)                                                                        \
    case ModuleId::id:                                                                                       \
        return Type##MenuBarItem(context.monitor.id(), context.settings, context.themes).body();
        ORVELLE_MODULES(ORVELLE_MODULE)
#undef ORVELLE_MODULE
    }
    return {};
}

} // namespace orvelle
