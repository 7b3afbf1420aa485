import QtQuick
import Orvelle.Common

/// A text in the middle, below a symbol where there is one.
Item {
    id: label

    required property string text
    required property string symbol
    required property bool isChosen
    readonly property real inset: 4
    readonly property color color: isChosen ? Look.primaryLabel : Look.valueLabel

    implicitWidth: name.implicitWidth + 2 * inset

    Column {
        y: Look.centred(parent.height, height)
        width: parent.width
        spacing: 3

        Symbol {
            visible: label.symbol !== ""
            x: Look.centred(parent.width, width)
            name: label.symbol
            fontSize: 12
            color: label.color
        }
        PlainText {
            id: name
            x: label.inset
            width: parent.width - 2 * label.inset
            horizontalAlignment: Text.AlignHCenter
            text: label.text
            size: label.symbol !== "" ? 10 : 11
            weight: label.isChosen ? Font.Medium : Font.Normal
            color: label.color
            Accessible.ignored: true
        }
    }
}
