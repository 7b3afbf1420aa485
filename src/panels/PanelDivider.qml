import QtQuick
import QtQuick.Layouts
import Orvelle.Panels

Rectangle {
    Layout.fillWidth: true
    implicitHeight: 1
    color: Look.separator
    opacity: 0.3
}
