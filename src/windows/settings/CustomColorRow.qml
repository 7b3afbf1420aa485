import QtQuick
import QtQuick.Layouts
import Orvelle.Common
import Orvelle.Settings

/// Switches a module's own colour on, and chooses it.
RowLayout {
    id: row

    required property string label
    required property string icon
    required property bool isEnabled
    required property string colorHex
    required property color themeColor
    /// The theme's while no colour has been chosen yet.
    readonly property color pickerColor: SettingsRules.colorFromHex(colorHex, themeColor)
    /// The user wants it so.
    signal enabledToggled(bool isEnabled)
    signal colorPicked(string colorHex)

    Layout.fillWidth: true
    spacing: 12 // the ground of the switch reaches into it

    SwitchRow {
        objectName: "switch"
        Layout.fillWidth: true
        text: row.label
        Accessible.name: "Own color for " + row.label
        symbol: row.icon
        symbolSize: 9
        symbolColor: row.isEnabled ? row.pickerColor : row.themeColor
        size: 10
        labelColor: Look.itemLabel
        checked: row.isEnabled
        onToggled: row.enabledToggled(checked)
    }
    Item { // keeps its place, so that the switches stay in line
        implicitWidth: 24
        implicitHeight: 18

        ColorWell {
            objectName: "well"
            visible: row.isEnabled
            anchors.fill: parent
            text: "Color for " + row.label
            color: row.pickerColor
            onPicked: picked => row.colorPicked(SettingsRules.hexFromColor(picked))
        }
    }
}
