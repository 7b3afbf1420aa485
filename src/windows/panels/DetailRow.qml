import QtQuick
import QtQuick.Layouts
import Orvelle.Common
import Orvelle.Panels

/// A label, and its value at the end of the row.
RowLayout {
    id: row

    required property string label
    required property string value
    property real labelSize: 11

    Layout.fillWidth: true
    spacing: 8

    PlainText {
        text: row.label
        size: row.labelSize
        color: Look.secondaryLabel
    }
    PlainText {
        text: row.value
        color: Look.valueLabel
        horizontalAlignment: Text.AlignRight
        Layout.fillWidth: true
        Accessible.name: row.label + " " + text
    }
}
