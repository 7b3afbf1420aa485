import QtQuick
import QtQuick.Layouts
import Orvelle.Common
import Orvelle.Panels

/// A fan, its icon turned, and its speed.
RowLayout {
    id: row

    required property var fan
    required property real baseAngle
    required property color moduleColor

    Layout.fillWidth: true
    spacing: 6

    Accessible.role: Accessible.ListItem
    Accessible.name: name.text + " " + speed.text

    Symbol {
        objectName: "icon"
        name: "fan"
        fontSize: 10
        color: row.moduleColor
        angle: PanelGraphics.displayedFanAngle(row.baseAngle, row.fan.speed)
    }
    PlainText {
        id: name
        text: "Fan " + row.fan.index
        color: Look.valueLabel
        Layout.fillWidth: true
    }
    PlainText {
        id: speed
        objectName: "speed"
        text: row.fan.speed + " RPM"
        weight: Font.Medium
        color: Look.valueLabel
    }
}
