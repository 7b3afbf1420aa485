import QtQuick
import QtQuick.Layouts
import Orvelle.Charts
import Orvelle.Common
import Orvelle.Panels

PanelBody {
    id: panel

    required property MemoryMonitor memory
    required property ProcessMonitor process
    readonly property var info: memory.info
    readonly property real pressure: PanelGraphics.pressureFraction(info)
    readonly property color moduleColor: colors.memory

    PanelHeader {
        symbol: "memorychip"
        title: "Memory"
        moduleColor: panel.moduleColor
        PlainText {
            objectName: "usedOfTotal"
            text: PanelTexts.formatByteSize(panel.info.used) + " / " + PanelTexts.formatByteSize(panel.info.total)
            size: 12
            weight: Font.Medium
            monospaced: true
            color: panel.moduleColor
            Accessible.name: "Memory used " + text
        }
    }
    Divider {}
    RowLayout {
        spacing: 24
        Layout.margins: 6
        MemoryRing {
            settings: panel.settings
            info: panel.info
            moduleColor: panel.moduleColor
        }
        ColumnLayout {
            id: legend
            readonly property real nameWidth: Math.max(70, longest.neededNameWidth)
            spacing: 6
            MemoryLegendItem {
                name: "Active"
                swatchColor: panel.moduleColor
                bytes: panel.info.active
                nameWidth: legend.nameWidth
            }
            MemoryLegendItem {
                name: "Wired"
                swatchColor: MemoryColors.wired
                bytes: panel.info.wired
                nameWidth: legend.nameWidth
            }
            MemoryLegendItem {
                id: longest
                name: "Compressed"
                swatchColor: MemoryColors.compressed
                bytes: panel.info.compressed
                nameWidth: legend.nameWidth
            }
            MemoryLegendItem {
                name: "Cached"
                swatchColor: MemoryColors.cached
                bytes: panel.info.cached
                nameWidth: legend.nameWidth
            }
            MemoryLegendItem {
                name: "Free"
                swatchColor: MemoryColors.freeInLegend
                bytes: panel.info.free
                nameWidth: legend.nameWidth
            }
        }
    }
    Divider {}
    ColumnLayout {
        spacing: 6
        RowLayout {
            SectionTitle {
                text: "MEMORY PRESSURE"
                Layout.fillWidth: true
            }
            ContinuousRectangle {
                objectName: "pressurePlate"
                implicitWidth: badge.implicitWidth + 2 * 6
                implicitHeight: badge.implicitHeight + 2 * 2
                radius: 4
                color: Look.withOpacity(badge.color, 0.15)
                PlainText {
                    id: badge
                    objectName: "pressureBadge"
                    x: Look.centred(parent.width, width)
                    y: Look.centred(parent.height, height)
                    text: PanelTexts.pressureBadgeText(panel.pressure)
                    size: 9
                    weight: Font.Bold
                    color: PanelGraphics.pressureBadgeColor(panel.pressure)
                    Accessible.name: "Memory pressure " + text
                }
            }
        }
        HistoryGraph {
            objectName: "history"
            Layout.preferredHeight: 50
            settings: panel.settings
            themeManager: panel.themeManager
            data: panel.memory.pressureHistory
            lineColor: PanelGraphics.pressureGraphColor(panel.pressure, panel.moduleColor)
            Accessible.name: "Memory pressure history"
        }
    }
    Divider {}
    RowLayout {
        spacing: 4
        PlainText {
            text: "Swap Used"
            color: Look.secondaryLabel
            Layout.fillWidth: true
        }
        PlainText {
            objectName: "swapUsed"
            text: PanelTexts.formatByteSize(panel.info.swapUsed)
            weight: Font.Medium
            monospaced: true
            color: Look.valueLabel
            Accessible.name: "Swap used " + text
        }
        PlainText {
            text: "of"
            color: Look.secondaryLabel
        }
        PlainText {
            text: PanelTexts.formatByteSize(panel.info.swapTotal)
            weight: Font.Medium
            monospaced: true
            color: Look.valueLabel
            Accessible.name: "Swap total " + text
        }
    }
    Divider {}
    ProcessListView {
        objectName: "processes"
        title: "Top Memory Consumers"
        processes: panel.process.topMemoryProcesses
        mode: ProcessListView.DisplayMode.Memory
        accentColor: panel.moduleColor
    }
}
