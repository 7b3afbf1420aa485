import QtQuick
import QtQuick.Templates as T
import Orvelle.Common
import Orvelle.Settings

/// A text, after a symbol where there is one, and a switch at the end of the row.
T.Switch {
    id: row

    property string symbol: ""
    property real symbolSize: 10
    property color symbolColor: Look.secondaryLabel
    property real size: 11
    property color labelColor: Look.valueLabel
    property string help: ""

    implicitWidth: implicitContentWidth + spacing + implicitIndicatorWidth + leftPadding + rightPadding
    implicitHeight: 24
    // The ground reaches beyond the row, so that the row itself stands in line with the titles and lines.
    leftInset: -6
    rightInset: -6
    spacing: 8
    focusPolicy: Qt.TabFocus
    hoverEnabled: true

    function switchOver() {
        toggle();
        toggled();
    }
    Keys.onReturnPressed: switchOver()
    Keys.onEnterPressed: switchOver()
    Accessible.name: text
    Accessible.description: help
    Accessible.onPressAction: switchOver()
    Accessible.onToggleAction: switchOver()

    background: Rectangle {
        radius: 5
        color: row.hovered ? Look.card : Look.clear
        KeyRing {
            control: row
            radius: 5
        }
    }
    indicator: SwitchTrack {
        x: row.width - row.rightPadding - width
        y: (row.height - height) / 2
        isOn: row.checked
        position: row.visualPosition
        isHeld: row.down
    }
    contentItem: SwitchLabel {
        text: row.text
        symbol: row.symbol
        symbolSize: row.symbolSize
        symbolColor: row.symbolColor
        size: row.size
        labelColor: row.labelColor
        rightInset: row.implicitIndicatorWidth + row.spacing
    }
    ControlHelp {
        control: row
        text: row.help
    }
}
