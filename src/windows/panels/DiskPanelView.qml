import QtQuick
import QtQuick.Layouts
import Orvelle.Common
import Orvelle.Panels

PanelBody {
    id: panel

    required property DiskMonitor disk
    readonly property var volumes: disk.volumes
    readonly property var io: disk.diskIO
    readonly property color moduleColor: colors.disk

    PanelHeader {
        symbol: "internaldrive"
        title: "Disk"
        moduleColor: panel.moduleColor
    }
    Divider {}
    ColumnLayout {
        spacing: 6
        SectionTitle { text: "VOLUMES" }
        Repeater {
            objectName: "volumes"
            model: RecordModel {
                key: "id"
                records: panel.volumes
            }
            // Only from Qt 6.5 on can a file say that a component may use an outer id (ComponentBehavior).
            delegate: VolumeCard {
                required property var record
                volume: record
                moduleColor: panel.moduleColor // qmllint disable unqualified
            }
        }
    }
    Divider {}
    RowLayout {
        spacing: 12
        SpeedBlock {
            symbol: "arrow.down.circle.fill"
            label: "Read"
            directionColor: panel.themeManager.currentTheme.diskReadColor
            speed: panel.io.readSpeed
            speedSize: 14
        }
        SpeedBlock {
            symbol: "arrow.up.circle.fill"
            label: "Write"
            directionColor: panel.themeManager.currentTheme.diskWriteColor
            speed: panel.io.writeSpeed
            speedSize: 14
        }
    }
    Divider {}
    RateGraphs {
        objectName: "graphs"
        settings: panel.settings
        themeManager: panel.themeManager
        title: "I/O ACTIVITY"
        firstName: "Read"
        firstData: panel.disk.readHistory
        firstColor: panel.themeManager.currentTheme.diskReadColor
        secondName: "Write"
        secondData: panel.disk.writeHistory
        secondColor: panel.themeManager.currentTheme.diskWriteColor
        graphHeight: 50
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
}
