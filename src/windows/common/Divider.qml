import QtQuick
import QtQuick.Layouts
import Orvelle.Common

Rectangle {
    Layout.fillWidth: true
    implicitHeight: 1
    color: Look.separator
    opacity: 0.3
    // Whole device pixels: at a scale of 1.5 some lines would look twice as thick as others.
    transform: Scale {
        yScale: Math.max(1, Math.floor(Screen.devicePixelRatio)) / Screen.devicePixelRatio
    }
}
