import QtQuick
import Orvelle.Settings

StylePreview {
    id: preview

    required property int style
    required property color color

    caption: SettingsRules.ringChartStyles[style].label
    drawing: RingDrawing {
        anchors.fill: parent
        style: preview.style
        color: preview.color
    }
}
