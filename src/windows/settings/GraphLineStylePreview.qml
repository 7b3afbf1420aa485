import QtQuick
import Orvelle.Settings

StylePreview {
    id: preview

    required property int style
    required property color color

    caption: SettingsRules.graphLineStyles[style].label
    drawing: GraphLineDrawing {
        anchors.fill: parent
        style: preview.style
        color: preview.color
    }
}
