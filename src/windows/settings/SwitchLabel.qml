import QtQuick
import Orvelle.Common

/// A text, after a symbol where there is one.
Item {
    id: label

    required property string text
    required property string symbol
    required property real symbolSize
    required property color symbolColor
    required property real size
    required property color labelColor
    /// Kept free at the end of the row.
    required property real rightInset
    /// The symbols have one width, so that the texts line up.
    readonly property real slotWidth: symbol !== "" ? 22 : 0

    implicitWidth: slotWidth + text.implicitWidth

    Symbol {
        visible: label.symbol !== ""
        x: Look.centred(14, width)
        y: Look.centred(parent.height, height)
        name: label.symbol
        fontSize: label.symbolSize
        color: label.symbolColor
    }
    PlainText {
        id: text
        x: label.slotWidth
        width: parent.width - x - label.rightInset
        y: Look.centred(parent.height, height)
        text: label.text
        size: label.size
        weight: Font.Medium
        color: label.labelColor
        Accessible.ignored: true
    }
}
