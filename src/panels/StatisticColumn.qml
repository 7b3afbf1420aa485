import QtQuick
import QtQuick.Layouts
import Orvelle.Panels

/// A label above its value.
ColumnLayout {
    id: column

    required property string label
    required property string value

    spacing: 2

    PanelText {
        text: column.label
        color: Look.secondaryLabel
    }
    PanelText {
        text: column.value
        monospaced: true
        color: Look.valueLabel
        Accessible.name: column.label + " " + text
    }
}
