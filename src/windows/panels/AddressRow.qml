import QtQuick
import QtQuick.Layouts
import Orvelle.Common
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
    Item {
        implicitHeight: input.implicitHeight
        Layout.fillWidth: true

        TextInput {
            id: input
            anchors.fill: parent
            text: row.address
            font: Look.fonts.system(row.addressSize, Font.Normal)
            color: Look.valueLabel
            selectedTextColor: Look.primaryLabel
            selectionColor: Look.withOpacity(row.selectionColor, 0.4)
            readOnly: true
            selectByMouse: true
            activeFocusOnTab: true
            clip: true
            horizontalAlignment: TextInput.AlignRight
            wrapMode: TextInput.WrapAnywhere
            Accessible.role: Accessible.EditableText
            Accessible.readOnly: true
            Accessible.name: row.label
        }
        // What cannot be written has no cursor; what is selected shows by itself where the focus is.
        FocusRing {
            objectName: "focusRing" + row.label
            control: input
            visible: input.activeFocus && input.selectedText === ""
            anchors.margins: -2
            anchors.leftMargin: Math.max(0, input.width - input.contentWidth) - 4
            anchors.rightMargin: -4
            radius: 4
            border.color: row.selectionColor
        }
    }
}
