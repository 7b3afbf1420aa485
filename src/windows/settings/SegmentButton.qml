import QtQuick
import Orvelle.Common
import Orvelle.Settings

/// One of the values of a `SegmentedPicker`.
ChoiceButton {
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
        Rectangle { // between two that are not chosen
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
