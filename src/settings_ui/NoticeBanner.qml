import QtQuick
import Orvelle.Look

/// Tells what went wrong; takes no room while nothing did.
Rectangle {
    id: banner

    required property string text

    visible: text !== ""
    implicitHeight: visible ? label.implicitHeight + 16 : 0
    color: Look.faded(Look.red, 0.25)
    Accessible.role: Accessible.AlertMessage
    Accessible.name: text

    PlainText {
        id: label
        anchors.fill: parent
        anchors.leftMargin: 16
        anchors.rightMargin: 16
        anchors.topMargin: 8
        text: banner.text
        weight: Font.Medium
        wrapMode: Text.Wrap
        maximumLineCount: 4
        Accessible.ignored: true
    }
}
