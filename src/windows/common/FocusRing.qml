import QtQuick
import Orvelle.Common

/// Shows on which control the keys act: around the control that it fills.
Rectangle {
    required property Item control

    anchors.fill: control
    visible: control.activeFocus
    color: Look.clear
    border.width: 1
}
