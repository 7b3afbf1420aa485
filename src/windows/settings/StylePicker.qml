import QtQuick
import QtQuick.Layouts
import Orvelle.Common
import Orvelle.Settings

/// Previews of a style setting's values side by side, in several rows if one is too short.
SettingGroup {
    id: picker

    required property color color

    Layout.fillWidth: true
    Layout.leftMargin: -3 // aligns the frames with the titles
    columns: SettingsLayout.fittingColumns(neededWidths(), columnSpacing, width).length
    columnSpacing: 12
    rowSpacing: 6

    // Only Qt 6.5 and later let a file declare that its components use outer ids (ComponentBehavior).
    delegate: PreviewButton {
        group: picker // qmllint disable unqualified
        setting: picker.setting // qmllint disable unqualified
        color: picker.color // qmllint disable unqualified
    }

    component PreviewButton: ChoiceButton {
        id: button

        required property string setting
        required property color color

        padding: 3

        background: Rectangle {
            radius: 6
            color: button.down ? Look.pressed : button.hovered ? Look.hovered : Look.clear
            KeyRing {
                control: button
                radius: 6
            }
        }
        contentItem: StylePreview {
            setting: button.setting
            style: button.modelData.value
            color: button.color
            caption: button.text
            isSelected: button.checked
        }
    }

    /// A drawing in a frame, and its caption below.
    component StylePreview: Column {
        id: preview

        required property string setting
        required property int style
        required property color color
        required property string caption
        required property bool isSelected

        spacing: 4

        Item {
            x: Look.centred(parent.width, width)
            width: 50
            height: 24

            Rectangle {
                objectName: "ground"
                anchors.fill: parent
                radius: 4
                color: Look.card
            }
            Outline {
                objectName: "outline"
                anchors.fill: parent
                z: 1 // covers the ends of the drawing
                radius: 4
                color: preview.isSelected ? Look.blue : Look.faintOutline
                lineWidth: preview.isSelected ? 1.5 : 0.5
            }
            StyleDrawing {
                anchors.fill: parent
                setting: preview.setting
                style: preview.style
                color: preview.color
            }
        }
        PlainText {
            objectName: "caption"
            x: Look.centred(parent.width, width)
            text: preview.caption
            size: 8
            weight: preview.isSelected ? Font.Bold : Font.Normal
            color: preview.isSelected ? Look.primaryLabel : Look.secondaryLabel
            Accessible.ignored: true
        }
    }
}
