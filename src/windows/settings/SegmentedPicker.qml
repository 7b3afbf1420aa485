import QtQuick
import QtQuick.Layouts
import Orvelle.Common
import Orvelle.Settings

/// The values of a setting side by side in one frame, in several rows if one is too short. A value with a symbol
/// shows it above its label.
SettingGroup {
    id: picker

    readonly property var needed: SettingsLayout.fittingColumns(neededWidths(), 0, width)
    readonly property var widths: SettingsLayout.sharedWidths(needed, width)
    readonly property real rowHeight: choices.some(choice => choice.symbol !== "") ? 42 : 24

    Layout.fillWidth: true
    implicitWidth: Math.max(200, SettingsLayout.widthOfOneRow(neededWidths()))
    columns: widths.length

    Rectangle {
        anchors.fill: parent
        z: -1
        radius: 6
        color: Look.hovered
    }
    // Only Qt 6.5 and later let a file declare that its components use outer ids (ComponentBehavior).
    delegate: SegmentButton {
        group: picker // qmllint disable unqualified
        width: picker.widths[index % picker.columns] ?? 0 // qmllint disable unqualified
        height: picker.rowHeight // qmllint disable unqualified
    }

    component SegmentButton: ChoiceButton {
        id: segment

        readonly property bool followsChosen: index - 1 === group.chosenIndex

        Accessible.description: modelData.help

        background: Item {
            Rectangle {
                anchors.fill: parent
                anchors.margins: 2
                radius: 5
                color: segment.checked ? Look.chosen
                       : segment.down ? Look.pressed : segment.hovered ? Look.hovered : Look.clear
                KeyRing {
                    control: segment
                    radius: 5
                }
            }
            Rectangle { // separates two segments that are not chosen
                visible: segment.index % segment.group.columns > 0 && !segment.checked && !segment.followsChosen
                width: 1
                height: parent.height / 2
                y: Look.centred(parent.height, height)
                color: Look.pressed
            }
        }
        contentItem: SegmentLabel {
            text: segment.text
            symbol: segment.modelData.symbol
            isChosen: segment.checked
        }
        ControlHelp {
            control: segment
            text: segment.modelData.help
        }
    }

    /// A centred label, below its symbol if it has one.
    component SegmentLabel: Item {
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
}
