import QtQuick
import QtQuick.Layouts
import Orvelle.Common
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

    PlainText {
        text: row.sensor.name
        size: 10
        color: Look.itemLabel
        Layout.fillWidth: true
    }
    PlainText {
        id: value
        objectName: "value"
        text: PanelTexts.formatTemperature(row.sensor.value, row.useFahrenheit)
        size: 10
        weight: Font.Medium
        monospaced: true
        color: PanelGraphics.temperatureBandColor(row.sensor.value)
    }
}
