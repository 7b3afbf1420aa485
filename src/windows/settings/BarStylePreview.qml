import QtQuick
import Orvelle.Settings

StylePreview {
    id: preview

    required property int style
    required property color color

    caption: SettingsRules.barChartStyles[style].label
    drawing: BarDrawing {
        anchors.fill: parent
        style: preview.style
        color: preview.color
    }
}
