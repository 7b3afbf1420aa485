import QtQuick
import QtQuick.Layouts
import Orvelle.Charts
import Orvelle.Common
import Orvelle.Panels

PanelBody {
    id: panel

    required property SensorMonitor sensor
    readonly property var sensors: sensor.sensors

    symbol: "thermometer"
    title: "Sensors"
    moduleColor: colors.sensor
    spacing: 12

    RowLayout {
        spacing: 20
        SensorGauge {
            objectName: "cpuGauge"
            title: "CPU"
            celsius: panel.sensor.cpuTemperature
            settings: panel.settings
        }
        SensorGauge {
            objectName: "gpuGauge"
            title: "GPU"
            celsius: panel.sensor.gpuTemperature
            settings: panel.settings
        }
    }
    Divider {}
    ColumnLayout {
        id: history

        readonly property bool hasSamples: panel.sensor.cpuTempHistory.length > 0
                                           || panel.sensor.gpuTempHistory.length > 0

        Layout.fillWidth: true
        spacing: 6

        SectionTitle { text: "TEMPERATURE HISTORY" }
        RowLayout {
            spacing: 4
            LegendItem {
                objectName: "cpuKey"
                text: "CPU"
                swatchColor: panel.moduleColor
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
            visible: history.hasSamples
            Layout.fillWidth: true
            implicitHeight: 50

            HistoryGraph {
                objectName: "cpuGraph"
                anchors.fill: parent
                settings: panel.settings
                themeManager: panel.themeManager
                data: panel.sensor.cpuTempHistory
                maxValue: 110
                lineColor: panel.moduleColor
                gridColor: Look.clear
                Accessible.name: "CPU temperature history"
            }
            HistoryGraph {
                objectName: "gpuGraph"
                visible: panel.sensor.gpuTempHistory.length > 0
                anchors.fill: parent
                settings: panel.settings
                themeManager: panel.themeManager
                data: panel.sensor.gpuTempHistory
                maxValue: 110
                lineColor: Look.orange
                gridColor: Look.clear
                Accessible.name: "GPU temperature history"
            }
        }
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
            // Before Qt 6.5 a file cannot declare that a component uses an outer id (ComponentBehavior).
            delegate: SensorRow {
                required property var record
                sensor: record
                useFahrenheit: panel.settings.useFahrenheit // qmllint disable unqualified
            }
        }
    }
    Divider {}
    // One timer turns the icons of all fans: twenty steps a second are smooth enough and cheap to paint.
    ColumnLayout {
        id: fanList

        readonly property var fans: panel.sensor.fans
        property var fanAngles: ({}) // degrees by the fan's index

        readonly property real stepSeconds: 0.05
        readonly property bool isTurning: visible && !AnimationClock.reduced
                                          && Array.from(fans).some(fan => PanelGraphics.isFanTurning(fan.speed))

        function turn() {
            const angles = {};
            for (const fan of Array.from(fans)) {
                const turnSeconds = PanelGraphics.fanTurnSeconds(fan.speed);
                const step = turnSeconds > 0 ? 360 * stepSeconds / turnSeconds : 0;
                angles[fan.index] = ((fanAngles[fan.index] ?? 0) + step) % 360;
            }
            fanAngles = angles;
        }

        Layout.fillWidth: true
        spacing: 4

        Timer {
            objectName: "fanAngleTimer"
            interval: 1000 * fanList.stepSeconds
            repeat: true
            running: fanList.isTurning && fanList.Window.window !== null
                     && fanList.Window.visibility !== Window.Hidden
            onTriggered: fanList.turn()
        }
        SectionTitle { text: "FAN SPEEDS" }
        Repeater {
            objectName: "fans"
            model: RecordModel {
                key: "index"
                records: fanList.fans
            }
            // Before Qt 6.5 a file cannot declare that a component uses an outer id (ComponentBehavior).
            delegate: FanRow {
                required property var record
                fan: record
                baseAngle: fanList.fanAngles[record.index] ?? 0 // qmllint disable unqualified
                moduleColor: panel.moduleColor // qmllint disable unqualified
            }
        }
    }

    component SensorGauge: TemperatureGauge {
        id: gauge

        required property SettingsStore settings
        required property string title
        required property real celsius

        Layout.fillWidth: true
        Layout.preferredWidth: 1 // the gauges of a row share it equally

        label: title
        temperature: celsius
        maxTemp: 110
        useFahrenheit: settings.useFahrenheit
        glowIntensity: settings.glowIntensity
        showGlow: PanelGraphics.hasGlow(settings.glowIntensity)

        Accessible.role: Accessible.Chart
        Accessible.name: PanelGraphics.isTemperatureKnown(celsius)
                         ? title + " " + PanelTexts.formatTemperature(celsius, settings.useFahrenheit)
                         : title + ": no temperature"
    }

    /// A sensor and its temperature.
    component SensorRow: RowLayout {
        id: sensorRow

        required property var sensor
        required property bool useFahrenheit

        Layout.fillWidth: true
        spacing: 8

        Accessible.role: Accessible.ListItem
        Accessible.name: sensor.name + " " + value.text

        PlainText {
            text: sensorRow.sensor.name
            size: 10
            color: Look.itemLabel
            Layout.fillWidth: true
        }
        PlainText {
            id: value
            objectName: "value"
            text: PanelTexts.formatTemperature(sensorRow.sensor.value, sensorRow.useFahrenheit)
            size: 10
            weight: Font.Medium
            monospaced: true
            color: PanelGraphics.temperatureBandColor(sensorRow.sensor.value)
        }
    }

    /// A fan, its icon turned, and its speed.
    component FanRow: RowLayout {
        id: fanRow

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
            color: fanRow.moduleColor
            angle: PanelGraphics.displayedFanAngle(fanRow.baseAngle, fanRow.fan.speed)
        }
        PlainText {
            id: name
            text: "Fan " + fanRow.fan.index
            color: Look.valueLabel
            Layout.fillWidth: true
        }
        PlainText {
            id: speed
            objectName: "speed"
            text: fanRow.fan.speed + " RPM"
            weight: Font.Medium
            color: Look.valueLabel
        }
    }
}
