import QtQuick
import Orvelle.Look

Column {
    spacing: 6

    Symbol {
        anchors.horizontalCenter: parent.horizontalCenter
        name: "powerplug.fill"
        fontSize: 24
        color: Look.green
    }
    PlainText {
        anchors.horizontalCenter: parent.horizontalCenter
        text: "No Battery Detected"
        size: 12
    }
    PlainText {
        anchors.horizontalCenter: parent.horizontalCenter
        text: "This Mac is running on AC power"
        size: 10
        color: Look.secondaryLabel
    }
}
