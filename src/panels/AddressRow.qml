import QtQuick
import QtQuick.Layouts
import Orvelle.Look
import Orvelle.Panels

/// A label and an address that can be selected and copied.
RowLayout {
    id: row

    required property string label
    required property string address
    required property color selectionColor
    property real addressSize: 11

    Layout.fillWidth: true
    spacing: 8

    PlainText {
        text: row.label
        color: Look.secondaryLabel
    }
    TextInput {
        text: row.address
        font: Look.systemFont(row.addressSize, Font.Normal)
        color: Look.valueLabel
        selectedTextColor: Look.primaryLabel
        selectionColor: Look.faded(row.selectionColor, 0.4)
        readOnly: true
        selectByMouse: true
        activeFocusOnTab: true
        clip: true
        horizontalAlignment: TextInput.AlignRight
        Layout.fillWidth: true
        Accessible.role: Accessible.EditableText
        Accessible.readOnly: true
        Accessible.name: row.label
    }
}
