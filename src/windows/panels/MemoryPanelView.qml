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
    readonly property real used: PanelGraphics.usedFraction(info)
    readonly property real pressure: PanelGraphics.pressureFraction(info)
    readonly property color wiredColor: Look.withOpacity(Look.red, 0.8)
    readonly property color compressedColor: Look.orange
    readonly property color cachedColor: Look.withOpacity(Look.cyan, 0.6)

    symbol: "memorychip"
    title: "Memory"
    moduleColor: colors.memory
    headerItems: PlainText {
        objectName: "usedOfTotal"
        text: PanelTexts.formatByteSize(panel.info.used) + " / " + PanelTexts.formatByteSize(panel.info.total)
        size: 12
        weight: Font.Medium
        monospaced: true
        color: panel.moduleColor
        Accessible.name: "Memory used " + text
    }

    RowLayout {
        spacing: 24
        Layout.margins: 6
        // The style of the settings chooses: every kind of memory, or the used share alone.
        Item {
            id: ring

            readonly property bool showsParts: PanelGraphics.showsParts(panel.settings.ringChartStyle)

            implicitWidth: 90
            implicitHeight: 90

            Accessible.role: Accessible.Chart
            Accessible.name: "Memory " + PanelTexts.formatPercent(panel.used) + " used"

            MultiSegmentRing {
                objectName: "parts"
                visible: ring.showsParts
                anchors.fill: parent
                lineWidth: 10
                size: 90
                trackColor: Look.partsTrack
                segments: [
                    { value: panel.info.wired, color: panel.wiredColor, label: "Wired" },
                    { value: panel.info.active, color: panel.moduleColor, label: "Active" },
                    { value: panel.info.compressed, color: panel.compressedColor, label: "Compressed" },
                    { value: panel.info.cached, color: panel.cachedColor, label: "Cached" },
                    { value: panel.info.free, color: Look.withOpacity(Look.white, 0.08), label: "Free" }
                ]
                children: Column {
                    x: Look.centred(parent.width, width)
                    y: Look.centred(parent.height, height)
                    PlainText {
                        x: Look.centred(parent.width, width)
                        text: PanelTexts.formatPercent(panel.used)
                        size: 16
                        weight: Font.Bold
                    }
                    PlainText {
                        x: Look.centred(parent.width, width)
                        text: "Used"
                        size: 8
                        color: Look.secondaryLabel
                    }
                }
            }
            AnimatedRingChart {
                objectName: "share"
                visible: !ring.showsParts
                anchors.fill: parent
                value: panel.used
                lineWidth: 10
                size: 90
                baseColor: panel.moduleColor
                trackColor: Look.track
                showGlow: PanelGraphics.hasGlow(panel.settings.glowIntensity)
                pulseCritical: true
                criticalThreshold: 0.9
                label: PanelTexts.formatPercent(panel.used)
                sublabel: "Used"
                ringStyle: panel.settings.ringChartStyle
                glowIntensity: panel.settings.glowIntensity
                animationSpeed: panel.settings.animationSpeed
            }
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
                swatchColor: panel.wiredColor
                bytes: panel.info.wired
                nameWidth: legend.nameWidth
            }
            MemoryLegendItem {
                id: longest
                name: "Compressed"
                swatchColor: panel.compressedColor
                bytes: panel.info.compressed
                nameWidth: legend.nameWidth
            }
            MemoryLegendItem {
                name: "Cached"
                swatchColor: panel.cachedColor
                bytes: panel.info.cached
                nameWidth: legend.nameWidth
            }
            MemoryLegendItem {
                name: "Free"
                swatchColor: Look.withOpacity(Look.white, 0.3) // brighter than in the ring: the swatch is small
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

    /// A part of the memory: its colour, its name and its size.
    component MemoryLegendItem: RowLayout {
        id: item

        required property string name
        required property color swatchColor
        required property real bytes
        /// The sizes stand below each other, so all names have the room of the longest.
        required property real nameWidth
        readonly property alias neededNameWidth: label.implicitWidth

        spacing: 6

        Rectangle {
            implicitWidth: 6
            implicitHeight: 6
            radius: 3
            color: item.swatchColor
        }
        PlainText {
            id: label
            text: item.name
            size: 10
            color: Look.secondaryLabel
            Layout.preferredWidth: item.nameWidth
        }
        PlainText {
            text: PanelTexts.formatByteSize(item.bytes)
            size: 10
            color: Look.valueLabel
            Accessible.name: item.name + " " + text
        }
    }
}
