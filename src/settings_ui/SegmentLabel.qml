import QtQuick
import Orvelle.Look

/// A text in the middle, below a symbol where there is one.
Item {
    id: label

    required property string text
    required property string symbol
    required property bool isChosen
    readonly property color color: isChosen ? Look.primaryLabel : Look.valueLabel

    Column {
        anchors.verticalCenter: parent.verticalCenter
        width: parent.width
        spacing: 3

        Symbol {
            visible: label.symbol !== ""
            anchors.horizontalCenter: parent.horizontalCenter
            name: label.symbol
            fontSize: 12
            color: label.color
        }
        PlainText {
            x: 4
            width: parent.width - 8
            horizontalAlignment: Text.AlignHCenter
            text: label.text
            size: label.symbol !== "" ? 10 : 11
            weight: label.isChosen ? Font.Medium : Font.Normal
            color: label.color
            Accessible.ignored: true
        }
    }
}
