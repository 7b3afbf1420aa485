import QtQuick
import QtQuick.Layouts
import Orvelle.Common
import Orvelle.Panels

PanelBody {
    id: panel

    required property SensorMonitor sensor
    readonly property var sensors: sensor.sensors
    readonly property color moduleColor: colors.sensor

    spacing: 12

    PanelHeader {
        symbol: "thermometer"
        title: "Sensors"
        moduleColor: panel.moduleColor
    }
    Divider {}
    RowLayout {
        spacing: 20
        SensorGauge {
            objectName: "cpuGauge"
            title: "CPU"
            celsius: panel.sensor.cpuTemperature
            settings: panel.settings
            baseColor: panel.moduleColor
        }
        SensorGauge {
            objectName: "gpuGauge"
            title: "GPU"
            celsius: panel.sensor.gpuTemperature
            settings: panel.settings
            baseColor: Look.orange
        }
    }
    Divider {}
    TemperatureHistory {
        sensor: panel.sensor
        settings: panel.settings
        themeManager: panel.themeManager
        moduleColor: panel.moduleColor
    }
    Divider {}
    ColumnLayout {
        spacing: 4
        SectionTitle { text: "ALL SENSORS" }
        PlainText {
            objectName: "placeholder"
            visible: panel.sensors.length === 0
            text: "No sensor data available"
            size: 10
            color: Look.secondaryLabel
            topPadding: 8
            bottomPadding: 8
        }
        Repeater {
            objectName: "sensors"
            model: RecordModel {
                key: "key"
                records: panel.sensors
            }
            // Only from Qt 6.5 on can a file say that a component may use an outer id (ComponentBehavior).
            delegate: SensorRow {
                required property var record
                sensor: record
                useFahrenheit: panel.settings.useFahrenheit // qmllint disable unqualified
            }
        }
    }
    Divider {}
    FanList {
        fans: panel.sensor.fans
        moduleColor: panel.moduleColor
    }
}
