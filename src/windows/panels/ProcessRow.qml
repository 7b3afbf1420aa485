import QtQuick
import QtQuick.Layouts
import Orvelle.Charts
import Orvelle.Common
import Orvelle.Panels

/// A process: its name, a bar that compares it with the heaviest, and its value.
RowLayout {
    id: row

    required property var process
    required property int mode
    required property color accentColor
    required property real maxValue
    readonly property real fraction: PanelGraphics.processBarFraction(process, mode, maxValue)

    Layout.fillWidth: true
    Layout.preferredHeight: 18
    spacing: 8

    Accessible.role: Accessible.ListItem
    Accessible.name: name.text + " " + value.text

    PlainText {
        id: name
        text: row.process.name
        weight: Font.Medium
        color: Look.nameLabel
        Layout.preferredWidth: 90
        Layout.maximumWidth: 90
    }
    GradientBar {
        objectName: "bar"
        Layout.fillWidth: true
        Layout.preferredHeight: 8
        fraction: row.fraction
        color: row.accentColor
        trackColor: Look.listTrack
    }
    TextMetrics {
        id: widestValue
        font: value.font
        text: row.mode === ProcessListView.DisplayMode.Memory ? "1000.0 MB" : "800.0%"
    }
    PlainText {
        id: value
        readonly property real room: Math.max(50, Math.ceil(widestValue.advanceWidth), implicitWidth)
        text: PanelTexts.processValueText(row.process, row.mode)
        size: 10
        weight: Font.Medium
        monospaced: true
        color: Look.secondaryLabel
        horizontalAlignment: Text.AlignRight
        Layout.minimumWidth: room
        Layout.maximumWidth: room
    }
}
