import QtQuick
import QtQuick.Layouts
import Orvelle.Panels

/// A sensor and its temperature.
RowLayout {
    id: row

    required property var sensor
    required property bool useFahrenheit

    Layout.fillWidth: true
    spacing: 8

    Accessible.role: Accessible.ListItem
    Accessible.name: sensor.name + " " + value.text

    PanelText {
        text: row.sensor.name
        size: 10
        color: Look.faded(Look.white, 0.7)
        Layout.fillWidth: true
    }
    PanelText {
        id: value
        objectName: "value"
        text: PanelRules.formatTemperature(row.sensor.value, row.useFahrenheit)
        size: 10
        weight: Font.Medium
        monospaced: true
        color: PanelRules.temperatureBandColor(row.sensor.value)
    }
}
