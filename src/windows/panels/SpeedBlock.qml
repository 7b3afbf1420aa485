import QtQuick
import QtQuick.Layouts
import Orvelle.Common
import Orvelle.Panels

/// The present speed in one direction.
ColumnLayout {
    id: block

    required property string symbol
    required property string label
    required property color directionColor
    required property real speed
    property real speedSize: 16

    spacing: 4
    Layout.fillWidth: true
    Layout.preferredWidth: 1 // blocks side by side share the row evenly

    RowLayout {
        spacing: 4
        Symbol {
            name: block.symbol
            fontSize: 10
            color: block.directionColor
        }
        PlainText {
            text: block.label
            size: 10
            color: Look.secondaryLabel
        }
    }
    PlainText {
        text: PanelTexts.formatRate(block.speed)
        size: block.speedSize
        weight: Font.DemiBold
        monospaced: true
        Layout.fillWidth: true
        Accessible.name: block.label + " " + text
    }
}
