import QtQuick
import QtQuick.Templates as T
import Orvelle.Common

/// Shows on which control the keys act, around its parent, where the keys brought one there and not the mouse.
Rectangle {
    required property T.Control control

    anchors.fill: parent
    visible: control.visualFocus
    color: Look.clear
    border.width: 2
    border.color: Look.blue
}
