import QtQuick
import QtQuick.Layouts
import Orvelle.Common
import Orvelle.Panels

PanelBody {
    id: panel

    required property BatteryMonitor battery
    readonly property var info: battery.battery
    readonly property bool isFull: info.isFullyCharged && !info.isCharging
    readonly property color healthColor: PanelGraphics.batteryHealthColor(info.health)

    symbol: "battery.100"
    title: "Battery"
    moduleColor: colors.battery
    hasHeader: info.isPresent

    // Not a section: it stands in the middle of the panel's room, whatever its size.
    children: Column {
        objectName: "notice"
        visible: !panel.info.isPresent
        x: Look.centred(parent.width, width)
        y: Look.centred(parent.height, height)
        spacing: 6

        Symbol {
            x: Look.centred(parent.width, width)
            name: "powerplug.fill"
            fontSize: 24
            color: Look.green
        }
        PlainText {
            x: Look.centred(parent.width, width)
            text: "No Battery Detected"
            size: 12
        }
        PlainText {
            x: Look.centred(parent.width, width)
            text: PanelTexts.mainsPowerNotice()
            size: 10
            color: Look.secondaryLabel
        }
    }
    ColumnLayout {
        objectName: "details"
        visible: panel.info.isPresent
        Layout.fillWidth: true
        spacing: 10

        ColumnLayout {
            spacing: 6
            RowLayout {
                spacing: 4
                PlainText {
                    objectName: "charge"
                    text: panel.info.currentCapacity + "%"
                    size: 24
                    weight: Font.Bold
                    color: panel.moduleColor
                    Layout.rightMargin: 4
                    Layout.alignment: Qt.AlignBaseline
                    Accessible.name: "Charge " + text
                }
                PlainText {
                    objectName: "state"
                    visible: !panel.info.isCharging // the mark says the same
                    text: PanelTexts.powerStateText(panel.info.isCharging, panel.info.isFullyCharged)
                    size: 12
                    color: Look.valueLabel
                    Layout.alignment: Qt.AlignBaseline
                }
                Item { Layout.fillWidth: true }
                Symbol {
                    visible: panel.info.isCharging
                    name: "bolt.fill"
                    fontSize: 11
                    color: Look.yellow
                }
                PlainText {
                    objectName: "mark"
                    visible: panel.info.isCharging || panel.isFull
                    text: panel.isFull ? "Fully Charged" : "Charging"
                    weight: Font.Medium
                    color: panel.isFull ? Look.green : Look.yellow
                }
            }
            UsageBar {
                implicitHeight: 10
                radius: 5
                fraction: panel.info.currentCapacity / 100
                fillColor: panel.info.isCharging ? Look.green : panel.moduleColor
            }
            RowLayout {
                spacing: 4
                PlainText {
                    objectName: "time"
                    text: PanelTexts.formatTimeRemaining(panel.info.isCharging ? panel.info.timeToFull
                                                                               : panel.info.timeToEmpty)
                    color: Look.valueLabel
                    Layout.fillWidth: true
                }
                Symbol {
                    name: "bolt"
                    fontSize: 9
                    color: Look.secondaryLabel
                }
                PlainText {
                    objectName: "power"
                    text: PanelTexts.measureText(panel.info.wattage, 1, "W")
                    monospaced: true
                    color: Look.valueLabel
                    Accessible.name: "Power " + text
                }
            }
        }
        Divider {}
        ColumnLayout {
            spacing: 6
            SectionTitle { text: "CHARGE HISTORY" }
            HistoryGraph {
                objectName: "history"
                Layout.preferredHeight: 50
                settings: panel.settings
                themeManager: panel.themeManager
                data: panel.battery.chargeHistory
                lineColor: panel.moduleColor
                Accessible.name: "Charge history"
            }
        }
        Divider {}
        ColumnLayout {
            spacing: 4
            DetailRow {
                label: "Temperature"
                value: PanelTexts.formatTemperature(panel.info.temperature, false)
            }
            DetailRow {
                label: "Voltage"
                value: PanelTexts.measureText(panel.info.voltage, 2, "V")
            }
            DetailRow {
                label: "Amperage"
                value: PanelTexts.measureText(panel.info.amperage, 0, "mA")
            }
            DetailRow {
                label: "Cycle Count"
                value: panel.info.cycleCount
            }
        }
        Divider {}
        ColumnLayout {
            spacing: 6
            RowLayout {
                SectionTitle {
                    text: "BATTERY HEALTH"
                    Layout.fillWidth: true
                }
                PlainText {
                    objectName: "health"
                    text: PanelTexts.formatPercent(panel.info.health)
                    weight: Font.DemiBold
                    color: panel.healthColor
                    Accessible.name: "Battery health " + text
                }
            }
            UsageBar {
                fraction: panel.info.health
                fillColor: panel.healthColor
            }
            PlainText {
                text: "Design: " + panel.info.designCapacity + " mAh | Max: " + panel.info.maxCapacity + " mAh"
                size: 9
                color: Look.secondaryLabel
                Layout.fillWidth: true
            }
        }
    }
}
