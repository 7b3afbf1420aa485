import QtQuick
import QtQuick.Layouts
import Orvelle.Common
import Orvelle.Panels

PanelBody {
    id: panel

    required property NetworkMonitor network
    readonly property var interfaces: network.interfaces
    readonly property color moduleColor: colors.network

    spacing: 12

    PanelHeader {
        symbol: "network"
        title: "Network"
        moduleColor: panel.moduleColor
    }
    Divider {}
    RowLayout {
        spacing: 12
        SpeedBlock {
            symbol: "arrow.down.circle.fill"
            label: "Download"
            directionColor: panel.themeManager.currentTheme.networkDownloadColor
            speed: panel.network.totalDownloadSpeed
        }
        SpeedBlock {
            symbol: "arrow.up.circle.fill"
            label: "Upload"
            directionColor: panel.themeManager.currentTheme.networkUploadColor
            speed: panel.network.totalUploadSpeed
        }
    }
    Divider {}
    RateGraphs {
        objectName: "graphs"
        settings: panel.settings
        themeManager: panel.themeManager
        title: "BANDWIDTH"
        firstName: "Download"
        firstData: panel.network.downloadHistory
        firstColor: panel.themeManager.currentTheme.networkDownloadColor
        secondName: "Upload"
        secondData: panel.network.uploadHistory
        secondColor: panel.themeManager.currentTheme.networkUploadColor
        graphHeight: 60
    }
    Divider {}
    ColumnLayout {
        spacing: 6
        AddressRow {
            label: "IPv4"
            address: panel.network.primaryIPv4
            selectionColor: panel.moduleColor
        }
        AddressRow {
            label: "IPv6"
            address: panel.network.primaryIPv6
            addressSize: 10
            selectionColor: panel.moduleColor
        }
    }
    Divider {}
    ColumnLayout {
        spacing: 6
        SectionTitle { text: "INTERFACES" }
        Repeater {
            objectName: "interfaces"
            model: RecordModel {
                key: "name"
                records: panel.interfaces
            }
            // Only from Qt 6.5 on can a file say that a component may use an outer id (ComponentBehavior).
            delegate: InterfaceRow {
                required property var record
                info: record
                moduleColor: panel.moduleColor // qmllint disable unqualified
            }
        }
    }
    Divider {}
    ColumnLayout {
        id: totals

        /// Without its type: whether the QML compiler knows that of the totals depends on its release.
        readonly property var network: panel.network

        spacing: 4
        DetailRow {
            label: "Total Downloaded"
            labelSize: 10
            value: PanelTexts.formatByteSize(totals.network.totalBytesIn)
        }
        DetailRow {
            label: "Total Uploaded"
            labelSize: 10
            value: PanelTexts.formatByteSize(totals.network.totalBytesOut)
        }
    }
}
