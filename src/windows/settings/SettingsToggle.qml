import QtQuick
import QtQuick.Templates as T
import Orvelle.Charts
import Orvelle.Common
import Orvelle.Settings

/// A switch at the end of a row, with its label and, optionally, a coloured symbol in front.
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
    // The background extends beyond the row, which is aligned with the titles and lines.
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

    /// A knob that slides in a track.
    component SwitchTrack: Rectangle {
        id: track

        required property bool isOn
        /// The knob's, from 0 to 1.
        required property real position
        required property bool isHeld

        implicitWidth: 28
        implicitHeight: 16
        radius: height / 2
        color: isOn ? Look.blue : Look.pressed

        Rectangle {
            x: 2 + track.position * (track.width - width - 4)
            y: 2
            width: 12
            height: 12
            radius: 6
            color: Look.white
            Behavior on x {
                enabled: !track.isHeld && !AnimationClock.reduced
                NumberAnimation { duration: 100 }
            }
        }
    }

    component SwitchLabel: Item {
        id: label

        required property string text
        required property string symbol
        required property real symbolSize
        required property color symbolColor
        required property real size
        required property color labelColor
        /// Kept free at the end of the row.
        required property real rightInset
        /// All symbols have the same slot, so that the texts line up.
        readonly property real slotWidth: symbol !== "" ? 22 : 0

        implicitWidth: slotWidth + caption.implicitWidth

        Symbol {
            visible: label.symbol !== ""
            x: Look.centred(14, width)
            y: Look.centred(parent.height, height)
            name: label.symbol
            fontSize: label.symbolSize
            color: label.symbolColor
        }
        PlainText {
            id: caption
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
}
