import QtQuick
import QtQuick.Layouts
import Orvelle.Common
import Orvelle.Panels

/// What the battery panel shows of a battery.
ColumnLayout {
    id: details

    required property var info
    required property list<real> chargeHistory
    required property SettingsStore settings
    required property ThemeManager themeManager
    required property color moduleColor
    readonly property bool isFull: info.isFullyCharged && !info.isCharging
    readonly property color healthColor: PanelGraphics.batteryHealthColor(info.health)

    Layout.fillWidth: true
    spacing: 10

    PanelHeader {
        symbol: "battery.100"
        title: "Battery"
        moduleColor: details.moduleColor
    }
    Divider {}
    ColumnLayout {
        spacing: 6
        RowLayout {
            spacing: 4
            PlainText {
                objectName: "charge"
                text: details.info.currentCapacity + "%"
                size: 24
                weight: Font.Bold
                color: details.moduleColor
                Layout.rightMargin: 4
                Layout.alignment: Qt.AlignBaseline
                Accessible.name: "Charge " + text
            }
            PlainText {
                objectName: "state"
                visible: !details.info.isCharging // the mark says the same
                text: PanelTexts.powerStateText(details.info.isCharging, details.info.isFullyCharged)
                size: 12
                color: Look.valueLabel
                Layout.alignment: Qt.AlignBaseline
            }
            Item { Layout.fillWidth: true }
            Symbol {
                visible: details.info.isCharging
                name: "bolt.fill"
                fontSize: 11
                color: Look.yellow
            }
            PlainText {
                objectName: "mark"
                visible: details.info.isCharging || details.isFull
                text: details.isFull ? "Fully Charged" : "Charging"
                weight: Font.Medium
                color: details.isFull ? Look.green : Look.yellow
            }
        }
        UsageBar {
            implicitHeight: 10
            radius: 5
            fraction: details.info.currentCapacity / 100
            fillColor: details.info.isCharging ? Look.green : details.moduleColor
        }
        RowLayout {
            spacing: 4
            PlainText {
                objectName: "time"
                text: PanelTexts.formatTimeRemaining(details.info.isCharging ? details.info.timeToFull
                                                                             : details.info.timeToEmpty)
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
                text: PanelTexts.measureText(details.info.wattage, 1, "W")
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
            settings: details.settings
            themeManager: details.themeManager
            data: details.chargeHistory
            lineColor: details.moduleColor
            Accessible.name: "Charge history"
        }
    }
    Divider {}
    ColumnLayout {
        spacing: 4
        DetailRow {
            label: "Temperature"
            value: PanelTexts.formatTemperature(details.info.temperature, false)
        }
        DetailRow {
            label: "Voltage"
            value: PanelTexts.measureText(details.info.voltage, 2, "V")
        }
        DetailRow {
            label: "Amperage"
            value: PanelTexts.measureText(details.info.amperage, 0, "mA")
        }
        DetailRow {
            label: "Cycle Count"
            value: details.info.cycleCount
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
                text: PanelTexts.formatPercent(details.info.health)
                weight: Font.DemiBold
                color: details.healthColor
                Accessible.name: "Battery health " + text
            }
        }
        UsageBar {
            fraction: details.info.health
            fillColor: details.healthColor
        }
        PlainText {
            text: "Design: " + details.info.designCapacity + " mAh | Max: " + details.info.maxCapacity + " mAh"
            size: 9
            color: Look.secondaryLabel
            Layout.fillWidth: true
        }
    }
}
