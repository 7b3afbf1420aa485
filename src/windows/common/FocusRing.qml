import QtQuick
import Orvelle.Common

/// Outlines its control while that has the keyboard focus.
Rectangle {
    required property Item control

    anchors.fill: control
    visible: control.activeFocus
    color: Look.clear
    border.width: 1
}
