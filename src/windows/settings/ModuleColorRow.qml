import Orvelle.Common
import Orvelle.Settings

/// A module's own colour in the settings.
CustomColorRow {
    required property SettingsStore settings
    required property ThemeManager themeManager
    required property var modelData

    label: modelData.label
    icon: modelData.icon
    isEnabled: settings[modelData.useCustomColor]
    colorHex: settings[modelData.customColorHex]
    themeColor: themeManager.currentTheme[modelData.themeColor]
    onEnabledToggled: isOn => settings[modelData.useCustomColor] = isOn
    onColorPicked: hex => settings.tune(modelData.customColorHex, hex)
}
