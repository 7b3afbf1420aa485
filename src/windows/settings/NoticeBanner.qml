import QtQuick
import Orvelle.Common

/// Tells what went wrong; takes no room while nothing did.
Rectangle {
    id: banner

    required property string text

    visible: text !== ""
    implicitHeight: text !== "" ? label.implicitHeight + 16 : 0
    color: Look.withOpacity(Look.red, 0.25)
    Accessible.role: Accessible.AlertMessage
    Accessible.name: text

    PlainText {
        id: label
        // Without a height of its own: an elided text measures itself by the height that it is given.
        x: 16
        y: 8
        width: banner.width - 2 * x
        text: banner.text
        weight: Font.Medium
        wrapMode: Text.Wrap
        maximumLineCount: 4
        Accessible.ignored: true
    }
}
