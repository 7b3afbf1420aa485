import QtQuick
import QtQuick.Layouts
import Orvelle.Common
import Orvelle.Panels

/// A colour and its meaning: a dot for areas, a stroke for lines.
RowLayout {
    id: item

    required property string text
    required property color swatchColor
    property bool isLine: false

    spacing: 4

    Rectangle {
        implicitWidth: item.isLine ? 12 : 6
        implicitHeight: item.isLine ? 2 : 6
        radius: item.isLine ? 1 : 3
        color: item.swatchColor
        Layout.alignment: Qt.AlignVCenter
    }
    PlainText {
        text: item.text
        size: item.isLine ? 9 : 10
        color: Look.secondaryLabel
    }
}
