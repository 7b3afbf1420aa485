import Orvelle.Common
import Orvelle.Settings

/// Shows and hides a module in the menu bar.
SettingsToggle {
    required property SettingsStore settings
    required property ModuleColors colors
    required property var modelData

    objectName: modelData.shown
    icon: modelData.icon
    label: modelData.label
    color: colors[modelData.key]
    isOn: settings[modelData.shown]
    onToggled: isOn => settings[modelData.shown] = isOn
}
