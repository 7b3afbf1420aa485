import QtQuick
import QtQuick.Layouts
import Orvelle.Settings

/// A switch with a coloured symbol.
Item {
    id: toggle

    required property string icon
    required property string label
    required property color color
    required property bool isOn
    /// The user wants it so.
    signal toggled(bool isOn)

    Layout.fillWidth: true
    implicitWidth: row.implicitWidth
    implicitHeight: row.implicitHeight

    SwitchRow {
        id: row
        objectName: "switch"
        anchors.fill: parent
        text: toggle.label
        symbol: toggle.icon
        symbolColor: toggle.color
        checked: toggle.isOn
        onToggled: toggle.toggled(checked)
    }
}
