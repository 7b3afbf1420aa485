import QtQuick
import QtQuick.Layouts
import Orvelle.Common
import Orvelle.Settings

/// The modules' own colours, hidden until they are asked for.
ColumnLayout {
    id: overrides

    required property SettingsStore settings
    required property ThemeManager themeManager
    property bool showCustomColors: false

    Layout.fillWidth: true
    spacing: 8

    DisclosureHeader {
        objectName: "disclosure"
        Layout.fillWidth: true
        title: "CUSTOM COLOR OVERRIDES"
        isExpanded: overrides.showCustomColors
        onClicked: overrides.showCustomColors = !overrides.showCustomColors
    }
    Loader {
        objectName: "customColors"
        Layout.fillWidth: true
        active: overrides.showCustomColors
        visible: active
        // Only from Qt 6.5 on can a file say that a component may use an outer id (ComponentBehavior).
        sourceComponent: CustomColorList {
            settings: overrides.settings // qmllint disable unqualified
            themeManager: overrides.themeManager // qmllint disable unqualified
        }
    }
}
