import QtQuick
import Orvelle.SettingsUI

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
