import QtQuick
import QtQuick.Templates as T
import Orvelle.Common

/// Marks the control that has the keyboard focus, around its parent. It stays hidden when the mouse set the focus.
Rectangle {
    required property T.Control control

    anchors.fill: parent
    visible: control.visualFocus
    color: Look.clear
    border.width: 2
    border.color: Look.blue
}
