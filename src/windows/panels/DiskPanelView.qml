import QtQuick
import QtQuick.Layouts
import Orvelle.Common
import Orvelle.Panels

PanelBody {
    id: panel

    required property DiskMonitor disk
    readonly property var volumes: disk.volumes
    readonly property var io: disk.diskIO

    symbol: "internaldrive"
    title: "Disk"
    moduleColor: colors.disk

    ColumnLayout {
        spacing: 6
        SectionTitle { text: "VOLUMES" }
        Repeater {
            objectName: "volumes"
            model: RecordModel {
                key: "id"
                records: panel.volumes
            }
            // Before Qt 6.5 a file cannot declare that a component uses an outer id (ComponentBehavior).
            delegate: VolumeCard {
                required property var record
                volume: record
                moduleColor: panel.moduleColor // qmllint disable unqualified
            }
        }
    }
    Divider {}
    TransferRates {
        settings: panel.settings
        themeManager: panel.themeManager
        spacing: panel.spacing
        valueSize: 14
        historyTitle: "I/O ACTIVITY"
        historyHeight: 50
        firstName: "Read"
        firstColor: panel.themeManager.currentTheme.diskReadColor
        firstRate: panel.io.readSpeed
        firstData: panel.disk.readHistory
        secondName: "Write"
        secondColor: panel.themeManager.currentTheme.diskWriteColor
        secondRate: panel.io.writeSpeed
        secondData: panel.disk.writeHistory
    }
    Divider {}
    RowLayout {
        PlainText {
            text: "Total Read: " + PanelTexts.formatByteSize(panel.io.bytesRead)
            size: 9
            color: Look.secondaryLabel
            Layout.fillWidth: true
        }
        PlainText {
            text: "Total Written: " + PanelTexts.formatByteSize(panel.io.bytesWritten)
            size: 9
            color: Look.secondaryLabel
        }
    }

    /// A mounted volume: its name, how full it is, and its sizes.
    component VolumeCard: Rectangle {
        id: card

        required property var volume
        required property color moduleColor
        readonly property real used: PanelGraphics.volumeUsedFraction(volume)
        readonly property color usageColor: PanelGraphics.volumeUsageColor(used, moduleColor)

        Layout.fillWidth: true
        implicitHeight: rows.implicitHeight + 2 * 8
        radius: 6
        color: Look.card

        Accessible.role: Accessible.ListItem
        Accessible.name: volume.name + " " + PanelTexts.formatPercent(used)

        ColumnLayout {
            id: rows
            x: 8
            y: 8
            width: card.width - 2 * 8
            spacing: 6

            RowLayout {
                spacing: 6
                Symbol {
                    objectName: "symbol"
                    name: PanelGraphics.volumeSymbol(card.volume.id)
                    fontSize: 11
                    color: Look.secondaryLabel
                }
                PlainText {
                    text: card.volume.name
                    Layout.fillWidth: true
                }
                PlainText {
                    objectName: "percent"
                    text: PanelTexts.formatPercent(card.used)
                    weight: Font.DemiBold
                    monospaced: true
                    color: card.usageColor
                }
            }
            UsageBar {
                fraction: card.used
                fillColor: card.usageColor
            }
            // In a wide font the last size stands below the others.
            Flow {
                id: sizes
                readonly property real leastSpacing: 6
                readonly property real freeWidth: width - usedSize.width - freeSize.width - totalSize.width
                Layout.fillWidth: true
                spacing: freeWidth < 2 * leastSpacing ? leastSpacing : freeWidth / 2
                PlainText {
                    id: usedSize
                    text: PanelTexts.volumeUsedText(card.volume)
                    size: 9
                    color: Look.secondaryLabel
                }
                PlainText {
                    id: freeSize
                    text: PanelTexts.formatByteSize(card.volume.freeSpace) + " free"
                    size: 9
                    color: Look.secondaryLabel
                }
                PlainText {
                    id: totalSize
                    text: PanelTexts.formatByteSize(card.volume.totalSpace) + " total"
                    size: 9
                    color: Look.secondaryLabel
                }
            }
        }
    }
}
