import QtQuick
import QtQuick.Layouts
import Orvelle.Common
import Orvelle.Panels

/// The heaviest processes, in the order in which they are given.
ColumnLayout {
    id: view

    enum DisplayMode { CPU, Memory }

    required property string title
    required property var processes
    required property int mode
    required property color accentColor
    readonly property real maxValue: PanelGraphics.processBarScale(processes, mode)

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
        // Only from Qt 6.5 on can a file say that a component may use an outer id (ComponentBehavior).
        delegate: ProcessRow {
            required property var record
            process: record
            mode: view.mode // qmllint disable unqualified
            accentColor: view.accentColor // qmllint disable unqualified
            maxValue: view.maxValue // qmllint disable unqualified
        }
    }
}
