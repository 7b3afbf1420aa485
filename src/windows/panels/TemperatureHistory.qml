import QtQuick
import QtQuick.Layouts
import Orvelle.Common
import Orvelle.Panels

/// The temperatures of both processors over time, in one frame.
ColumnLayout {
    id: history

    required property SensorMonitor sensor
    required property SettingsStore settings
    required property ThemeManager themeManager
    required property color moduleColor
    readonly property bool hasHistory: sensor.cpuTempHistory.length > 0 || sensor.gpuTempHistory.length > 0

    Layout.fillWidth: true
    spacing: 6

    SectionTitle { text: "TEMPERATURE HISTORY" }
    RowLayout {
        spacing: 4
        LegendItem {
            objectName: "cpuKey"
            text: "CPU"
            swatchColor: history.moduleColor
            isLine: true
        }
        LegendItem {
            objectName: "gpuKey"
            text: "GPU"
            swatchColor: Look.orange
            isLine: true
        }
    }
    Item {
        objectName: "graphs"
        visible: history.hasHistory
        Layout.fillWidth: true
        implicitHeight: 50

        HistoryGraph {
            objectName: "cpuGraph"
            anchors.fill: parent
            settings: history.settings
            themeManager: history.themeManager
            data: history.sensor.cpuTempHistory
            maxValue: 110
            lineColor: history.moduleColor
            gridColor: Look.clear
            Accessible.name: "CPU temperature history"
        }
        HistoryGraph {
            objectName: "gpuGraph"
            visible: history.sensor.gpuTempHistory.length > 0
            anchors.fill: parent
            settings: history.settings
            themeManager: history.themeManager
            data: history.sensor.gpuTempHistory
            maxValue: 110
            lineColor: Look.orange
            gridColor: Look.clear
            Accessible.name: "GPU temperature history"
        }
    }
}
