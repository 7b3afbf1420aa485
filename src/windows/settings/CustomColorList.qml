import QtQuick
import QtQuick.Layouts
import Orvelle.Common
import Orvelle.Settings

/// The modules' own colours.
ColumnLayout {
    id: list

    required property SettingsStore settings
    required property ThemeManager themeManager

    spacing: 2

    PlainText {
        Layout.fillWidth: true
        Layout.bottomMargin: 4
        text: "Override individual module colors. Disable to use theme colors."
        size: 10
        color: Look.secondaryLabel
        wrapMode: Text.WordWrap
        maximumLineCount: 3
    }
    Repeater {
        model: SettingsRules.modules
        // Only from Qt 6.5 on can a file say that a component may use an outer id (ComponentBehavior).
        delegate: ModuleColorRow {
            settings: list.settings // qmllint disable unqualified
            themeManager: list.themeManager // qmllint disable unqualified
        }
    }
}
