import QtQuick
import QtQuick.Layouts
import Orvelle.Charts
import Orvelle.Common
import Orvelle.Panels

PanelBody {
    id: panel

    required property CPUMonitor cpu
    required property ProcessMonitor process
    readonly property var coreUsages: cpu.coreUsages

    symbol: "cpu"
    title: "CPU"
    moduleColor: colors.cpu
    headerItems: PlainText {
        objectName: "totalUsage"
        text: PanelTexts.percentText(panel.cpu.totalUsage * 100)
        size: 18
        weight: Font.Bold
        color: panel.moduleColor
        Accessible.name: "Total usage " + text
    }

    ColumnLayout {
        spacing: 6
        SectionTitle { text: "PER CORE" }
        AnimatedBarChart {
            objectName: "coreChart"
            Layout.fillWidth: true
            Layout.preferredHeight: 50
            values: panel.coreUsages.map(core => core.user + core.system)
            maxValue: 1
            barSpacing: 2
            baseColor: panel.moduleColor
            showGlow: PanelGraphics.hasGlow(panel.settings.glowIntensity)
            animateChanges: true
            barStyle: panel.settings.barChartStyle
            glowIntensity: panel.settings.glowIntensity
            animationSpeed: panel.settings.animationSpeed
            Accessible.role: Accessible.Chart
            Accessible.name: "Usage per core"
        }
        RowLayout {
            spacing: 12
            LegendItem {
                text: "User: " + PanelTexts.percentText(panel.cpu.userUsage * 100)
                swatchColor: panel.moduleColor
            }
            LegendItem {
                text: "System: " + PanelTexts.percentText(panel.cpu.systemUsage * 100)
                swatchColor: Look.withOpacity(panel.moduleColor, 0.5)
            }
        }
    }
    Divider {}
    ColumnLayout {
        spacing: 6
        SectionTitle { text: "HISTORY (60s)" }
        HistoryGraph {
            objectName: "history"
            Layout.preferredHeight: 60
            settings: panel.settings
            themeManager: panel.themeManager
            data: panel.cpu.usageHistory
            lineColor: panel.moduleColor
            Accessible.name: "Usage history"
        }
    }
    Divider {}
    RowLayout {
        Layout.fillWidth: true
        spacing: 0
        StatisticColumn {
            label: "Load Average"
            value: PanelTexts.loadAveragesText(panel.cpu.loadAverage1, panel.cpu.loadAverage5,
                                               panel.cpu.loadAverage15)
        }
        Item {
            Layout.fillWidth: true
            Layout.minimumWidth: 8
        }
        StatisticColumn {
            label: "Uptime"
            value: PanelTexts.formatUptime(panel.cpu.uptime)
        }
        Item {
            Layout.fillWidth: true
            Layout.minimumWidth: 8
        }
        StatisticColumn {
            label: "Cores"
            value: panel.coreUsages.length
        }
    }
    Divider {}
    ProcessListView {
        objectName: "processes"
        title: "Top Processes"
        processes: panel.process.topCPUProcesses
        mode: ProcessListView.DisplayMode.CPU
        accentColor: panel.moduleColor
    }

    /// A label above its value.
    component StatisticColumn: ColumnLayout {
        id: column

        required property string label
        required property string value

        spacing: 2
        Layout.fillWidth: true
        Layout.maximumWidth: implicitWidth

        PlainText {
            text: column.label
            color: Look.secondaryLabel
        }
        PlainText {
            text: column.value
            monospaced: true
            color: Look.valueLabel
            elide: Text.ElideNone
            fontSizeMode: Text.HorizontalFit // three long values side by side grow smaller
            minimumPixelSize: 8
            Layout.fillWidth: true
            Accessible.name: column.label + " " + text
        }
    }
}
