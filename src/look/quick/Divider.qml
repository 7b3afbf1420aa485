import QtQuick
import QtQuick.Layouts
import Orvelle.Look

Rectangle {
    Layout.fillWidth: true
    implicitHeight: 1
    color: Look.separator
    opacity: 0.3
}
