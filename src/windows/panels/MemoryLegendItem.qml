import QtQuick
import QtQuick.Layouts
import Orvelle.Common
import Orvelle.Panels

/// A part of the memory: its colour, its name and its size.
RowLayout {
    id: item

    required property string name
    required property color swatchColor
    required property real bytes
    /// The sizes stand below each other, so all names have the room of the longest.
    required property real nameWidth
    readonly property alias neededNameWidth: label.implicitWidth

    spacing: 6

    Rectangle {
        implicitWidth: 6
        implicitHeight: 6
        radius: 3
        color: item.swatchColor
    }
    PlainText {
        id: label
        text: item.name
        size: 10
        color: Look.secondaryLabel
        Layout.preferredWidth: item.nameWidth
    }
    PlainText {
        text: PanelTexts.formatByteSize(item.bytes)
        size: 10
        color: Look.valueLabel
        Accessible.name: item.name + " " + text
    }
}
