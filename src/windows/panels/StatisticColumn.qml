import QtQuick
import QtQuick.Layouts
import Orvelle.Common
import Orvelle.Panels

/// A label above its value.
ColumnLayout {
    id: column

    required property string label
    required property string value

    spacing: 2
    Layout.fillWidth: true
    Layout.maximumWidth: implicitWidth

    PlainText {
        text: column.label
        color: Look.secondaryLabel
    }
    PlainText {
        text: column.value
        monospaced: true
        color: Look.valueLabel
        elide: Text.ElideNone
        fontSizeMode: Text.HorizontalFit // three long values side by side grow smaller
        minimumPixelSize: 8
        Layout.fillWidth: true
        Accessible.name: column.label + " " + text
    }
}
