import QtQuick
import QtQuick.Layouts
import Orvelle.Charts
import Orvelle.Common
import Orvelle.Panels

/// The processes that use most, in the given order.
ColumnLayout {
    id: view

    enum DisplayMode { CPU, Memory }

    required property string title
    required property var processes
    required property int mode
    required property color accentColor
    readonly property bool byMemory: mode === ProcessListView.DisplayMode.Memory
    readonly property real maxValue: PanelGraphics.processBarScale(processes, byMemory)

    Layout.fillWidth: true
    spacing: 2

    PlainText {
        text: view.title.toUpperCase()
        weight: Font.DemiBold
        color: Look.secondaryLabel
        Accessible.role: Accessible.Heading
        Accessible.name: view.title
    }
    Repeater {
        objectName: "rows"
        model: RecordModel {
            key: "pid"
            records: view.processes
        }
        // Before Qt 6.5 a file cannot declare that a component uses an outer id (ComponentBehavior).
        delegate: ProcessRow {
            required property var record
            process: record
            byMemory: view.byMemory // qmllint disable unqualified
            accentColor: view.accentColor // qmllint disable unqualified
            maxValue: view.maxValue // qmllint disable unqualified
        }
    }

    /// A process: its name, its value, and a bar that compares the value with the largest.
    component ProcessRow: RowLayout {
        id: row

        required property var process
        required property bool byMemory
        required property color accentColor
        required property real maxValue
        readonly property real fraction: PanelGraphics.processBarFraction(process, byMemory, maxValue)

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
            text: row.byMemory ? "1000.0 MB" : "800.0%"
        }
        PlainText {
            id: value
            readonly property real room: Math.max(50, Math.ceil(widestValue.advanceWidth), implicitWidth)
            text: PanelTexts.processValueText(row.process, row.byMemory)
            size: 10
            weight: Font.Medium
            monospaced: true
            color: Look.secondaryLabel
            horizontalAlignment: Text.AlignRight
            Layout.minimumWidth: room
            Layout.maximumWidth: room
        }
    }
}
