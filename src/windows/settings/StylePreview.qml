import QtQuick
import Orvelle.Common
import Orvelle.Settings

/// The frame of a style's preview: the drawing, and its caption below.
Column {
    id: preview

    required property bool isSelected
    required property string caption
    property alias drawing: frame.data

    spacing: 4

    Item {
        id: frame
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
            z: 1 // the drawing ends at it
            radius: 4
            color: preview.isSelected ? Look.blue : Look.faintOutline
            lineWidth: preview.isSelected ? 1.5 : 0.5
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
