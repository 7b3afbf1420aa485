import QtQuick
import QtQuick.Layouts
import Orvelle.Common
import Orvelle.Panels

/// A track that is filled to a fraction.
Rectangle {
    id: bar

    required property real fraction
    required property color fillColor

    Layout.fillWidth: true
    implicitHeight: 6
    radius: 3
    color: Look.track

    Rectangle {
        objectName: "fill"
        width: bar.width * Math.max(0, Math.min(bar.fraction, 1))
        height: bar.height
        radius: bar.radius
        color: bar.fillColor
    }
}
