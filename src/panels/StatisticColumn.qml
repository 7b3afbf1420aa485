import QtQuick
import QtQuick.Layouts
import Orvelle.Look
import Orvelle.Panels

/// A label above its value.
ColumnLayout {
    id: column

    required property string label
    required property string value

    spacing: 2

    PlainText {
        text: column.label
        color: Look.secondaryLabel
    }
    PlainText {
        text: column.value
        monospaced: true
        color: Look.valueLabel
        Accessible.name: column.label + " " + text
    }
}
