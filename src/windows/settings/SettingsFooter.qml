import QtQuick.Layouts
import Orvelle.Common
import Orvelle.Settings

RowLayout {
    id: footer

    signal quitApp()

    Layout.fillWidth: true

    PlainText {
        Layout.fillWidth: true
        text: "Orvelle v1.0"
        size: 9
        color: Look.secondaryLabel
        opacity: 0.5
    }
    QuitButton {
        objectName: "quit"
        Layout.rightMargin: -rightPadding // its text stands in line with the switches
        onClicked: footer.quitApp()
    }
}
