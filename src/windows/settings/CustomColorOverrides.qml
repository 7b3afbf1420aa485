import QtQuick
import QtQuick.Layouts
import Orvelle.Common
import Orvelle.Settings

/// The modules' own colours, collapsed at first.
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
        // Here and below: only Qt 6.5 and later let a file declare that its components use outer ids
        // (ComponentBehavior).
        sourceComponent: CustomColorList {
            settings: overrides.settings // qmllint disable unqualified
            themeManager: overrides.themeManager // qmllint disable unqualified
        }
    }

    component CustomColorList: ColumnLayout {
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
            model: Choices.modules
            delegate: CustomColorRow {
                settings: list.settings // qmllint disable unqualified
                themeManager: list.themeManager // qmllint disable unqualified
            }
        }
    }

    /// Switches a module's own colour on, and chooses it.
    component CustomColorRow: RowLayout {
        id: row

        required property SettingsStore settings
        required property ThemeManager themeManager
        required property var modelData
        readonly property string label: modelData.label
        readonly property bool isEnabled: settings[modelData.useCustomColor]
        readonly property string colorHex: settings[modelData.customColorHex]
        readonly property color themeColor: themeManager.currentTheme[modelData.themeColor]
        /// The theme's until a colour has been chosen.
        readonly property color pickerColor: ColorConversion.colorFromHex(colorHex, themeColor)

        Layout.fillWidth: true
        spacing: 12 // the background of the switch extends into it

        SettingsToggle {
            objectName: "switch"
            Layout.fillWidth: true
            text: row.label
            Accessible.name: "Own color for " + row.label
            symbol: row.modelData.icon
            symbolSize: 9
            symbolColor: row.isEnabled ? row.pickerColor : row.themeColor
            size: 10
            labelColor: Look.itemLabel
            checked: row.isEnabled
            onToggled: row.settings[row.modelData.useCustomColor] = checked
        }
        Item { // aligns the switches while the well is hidden
            implicitWidth: 24
            implicitHeight: 18

            ColorWell {
                objectName: "well"
                visible: row.isEnabled
                anchors.fill: parent
                text: "Color for " + row.label
                color: row.pickerColor
                onPicked: picked => row.settings.tune(row.modelData.customColorHex,
                                                      ColorConversion.hexFromColor(picked))
            }
        }
    }
}
