#pragma once

#include <QLatin1StringView>

#include <array>

/// The modules that the program can show in the menu bar, from left to right: one line each, and the only
/// list of them. Settings, colours, items, panels and the windows' rows are made from it, with the names that
/// follow from its columns.
///
///   id         the module in code, its key, and its monitor in `SystemMonitor`
///   Type       in the names of its classes: CPUMonitor, CPUMenuBarItem, CPUPanelView.qml, useCustomCPUColor
///   Title      as the user reads it, and in the name of the setting that shows it
///   color      its colour in `AppTheme`
///   symbol     beside its title in the settings window
///   width      of its status item, points
///   isShown    in the menu bar, unless the user chose
//
// clang-format off
#define ORVELLE_MODULES(MODULE) \
    /*     id       Type     Title    color         symbol           width  isShown */ \
    MODULE(cpu,     CPU,     CPU,     cpuColor,     "cpu",           60,    true)  \
    MODULE(memory,  Memory,  Memory,  memoryColor,  "memorychip",    70,    true)  \
    MODULE(network, Network, Network, networkColor, "network",       90,    true)  \
    MODULE(disk,    Disk,    Disk,    diskColor,    "internaldrive", 45,    false) \
    MODULE(battery, Battery, Battery, batteryColor, "battery.100",   65,    true)  \
    MODULE(sensor,  Sensor,  Sensors, sensorColor,  "thermometer",   50,    false)
// clang-format on

namespace orvelle {

enum class ModuleId {
#define ORVELLE_MODULE(id, Type, Title, color, symbol, width, isShown) id,
    ORVELLE_MODULES(ORVELLE_MODULE)
#undef ORVELLE_MODULE
};

/// A line of the table, with the names that follow from it.
struct ModuleInfo {
    ModuleId id;
    QLatin1StringView key;
    QLatin1StringView title;
    QLatin1StringView symbol;
    double width; ///< of its status item, points
    bool isShownByDefault;
    /// Properties of `SettingsStore`: whether the module has an item in the menu bar, whether the user's own
    /// colour replaces the theme's, and that colour.
    QLatin1StringView showSetting;
    QLatin1StringView useCustomColorSetting;
    QLatin1StringView customColorHexSetting;
    QLatin1StringView themeColor; ///< property of `AppTheme`
    QLatin1StringView panelView;  ///< QML type of its panel
};

/// The table as values, from left to right.
inline constexpr std::array moduleTable{
#define ORVELLE_MODULE(id, Type, Title, color, symbol, width, isShown)                                       \
    ModuleInfo{ModuleId::id,                                                                                 \
               QLatin1StringView(#id),                                                                       \
               QLatin1StringView(#Title),                                                                    \
               QLatin1StringView(symbol),                                                                    \
               width,                                                                                        \
               isShown,                                                                                      \
               QLatin1StringView("show" #Title),                                                             \
               QLatin1StringView("useCustom" #Type "Color"),                                                 \
               QLatin1StringView("custom" #Type "ColorHex"),                                                 \
               QLatin1StringView(#color),                                                                    \
               QLatin1StringView(#Type "PanelView")},
    ORVELLE_MODULES(ORVELLE_MODULE)
#undef ORVELLE_MODULE
};

[[nodiscard]] constexpr const ModuleInfo& moduleInfo(ModuleId id) {
    return moduleTable[static_cast<std::size_t>(id)];
}

} // namespace orvelle
