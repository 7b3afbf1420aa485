import QtQuick
import Orvelle.Charts
import Orvelle.Common
import Orvelle.Panels

/// How the memory is divided, or how much of it is used, by the style of the settings.
Item {
    id: ring

    required property SettingsStore settings
    required property var info
    required property color moduleColor
    readonly property real used: PanelGraphics.usedFraction(info)
    readonly property bool showsParts: PanelGraphics.showsParts(settings.ringChartStyle)

    implicitWidth: 90
    implicitHeight: 90

    Accessible.role: Accessible.Chart
    Accessible.name: "Memory " + PanelTexts.formatPercent(used) + " used"

    MultiSegmentRing {
        objectName: "parts"
        visible: ring.showsParts
        anchors.fill: parent
        lineWidth: 10
        size: 90
        trackColor: Look.partsTrack
        segments: [
            { value: ring.info.wired, color: MemoryColors.wired, label: "Wired" },
            { value: ring.info.active, color: ring.moduleColor, label: "Active" },
            { value: ring.info.compressed, color: MemoryColors.compressed, label: "Compressed" },
            { value: ring.info.cached, color: MemoryColors.cached, label: "Cached" },
            { value: ring.info.free, color: MemoryColors.freeInRing, label: "Free" }
        ]
        children: Column {
            x: Look.centred(parent.width, width)
            y: Look.centred(parent.height, height)
            PlainText {
                x: Look.centred(parent.width, width)
                text: PanelTexts.formatPercent(ring.used)
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
        value: ring.used
        lineWidth: 10
        size: 90
        baseColor: ring.moduleColor
        trackColor: Look.track
        showGlow: PanelGraphics.hasGlow(ring.settings.glowIntensity)
        pulseCritical: true
        criticalThreshold: 0.9
        label: PanelTexts.formatPercent(ring.used)
        sublabel: "Used"
        ringStyle: ring.settings.ringChartStyle
        glowIntensity: ring.settings.glowIntensity
        animationSpeed: ring.settings.animationSpeed
    }
}
