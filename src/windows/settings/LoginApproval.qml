import QtQuick
import QtQuick.Layouts
import Orvelle.Common
import Orvelle.Settings

/// Says that the system waits for the user to allow the start at login, and opens the place where that is done.
RowLayout {
    id: row

    signal opened()

    spacing: 8

    PlainText {
        objectName: "approvalText"
        Layout.fillWidth: true
        text: "Not allowed in the system's settings"
        size: 10
        color: Look.orange
        wrapMode: Text.Wrap
        maximumLineCount: 3
    }
    PushButton {
        id: button
        objectName: "approvalButton"
        Layout.rightMargin: -rightPadding // aligns its text with the switches
        text: "Open…"
        padding: 4
        leftPadding: 8
        rightPadding: 8
        Accessible.description: "Opens the login items in the system's settings"
        onClicked: row.opened()
        contentItem: PlainText {
            text: button.text
            size: 10
            weight: Font.Medium
            color: Look.valueLabel
            Accessible.ignored: true
        }
    }
}
