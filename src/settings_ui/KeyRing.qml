import QtQuick
import Orvelle.Look

/// Shows on which control the keys act, around its parent.
Rectangle {
    required property Item control

    anchors.fill: parent
    visible: control.activeFocus
    color: Look.clear
    border.width: 2
    border.color: Look.blue
}
