import QtQuick
import QtQuick.Layouts
import Orvelle.Common
import Orvelle.Panels

PanelBody {
    id: panel

    required property NetworkMonitor network
    readonly property var interfaces: network.interfaces

    symbol: "network"
    title: "Network"
    moduleColor: colors.network
    spacing: 12

    TransferRates {
        settings: panel.settings
        themeManager: panel.themeManager
        spacing: panel.spacing
        valueSize: 16
        historyTitle: "BANDWIDTH"
        historyHeight: 60
        firstName: "Download"
        firstColor: panel.themeManager.currentTheme.networkDownloadColor
        firstRate: panel.network.totalDownloadSpeed
        firstData: panel.network.downloadHistory
        secondName: "Upload"
        secondColor: panel.themeManager.currentTheme.networkUploadColor
        secondRate: panel.network.totalUploadSpeed
        secondData: panel.network.uploadHistory
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
            // Before Qt 6.5 a file cannot declare that a component uses an outer id (ComponentBehavior).
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

        /// Untyped: not every release of the QML compiler knows the type of the totals.
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

    /// A label and an address that can be selected and copied.
    component AddressRow: RowLayout {
        id: row

        required property string label
        required property string address
        required property color selectionColor
        property real addressSize: 11

        Layout.fillWidth: true
        spacing: 8

        PlainText {
            text: row.label
            color: Look.secondaryLabel
        }
        Item {
            implicitHeight: input.implicitHeight
            Layout.fillWidth: true

            TextInput {
                id: input
                anchors.fill: parent
                text: row.address
                font: Look.fonts.system(row.addressSize, Font.Normal)
                color: Look.valueLabel
                selectedTextColor: Look.primaryLabel
                selectionColor: Look.withOpacity(row.selectionColor, 0.4)
                readOnly: true
                selectByMouse: true
                activeFocusOnTab: true
                clip: true
                horizontalAlignment: TextInput.AlignRight
                wrapMode: TextInput.WrapAnywhere
                Accessible.role: Accessible.EditableText
                Accessible.readOnly: true
                Accessible.name: row.label
            }
            // A read-only text shows no cursor; a selection shows the focus by itself.
            FocusRing {
                objectName: "focusRing" + row.label
                control: input
                visible: input.activeFocus && input.selectedText === ""
                anchors.margins: -2
                anchors.leftMargin: Math.max(0, input.width - input.contentWidth) - 4
                anchors.rightMargin: -4
                radius: 4
                border.color: row.selectionColor
            }
        }
    }

    component RateText: PlainText {
        size: 9
        monospaced: true
        color: Look.secondaryLabel
        horizontalAlignment: Text.AlignRight
        Layout.preferredWidth: Math.max(68, implicitWidth) // the rates of all rows form columns
    }

    /// A network interface and its present rates.
    component InterfaceRow: RowLayout {
        id: interfaceRow

        required property var info
        required property color moduleColor
        /// The system's name, empty where it is shown already.
        readonly property string systemName: info.displayName === info.name ? "" : info.name

        Layout.fillWidth: true
        spacing: 6
        z: hover.hovered ? 1 : 0 // its tooltip stands above the rows beside it

        Accessible.role: Accessible.ListItem
        Accessible.name: info.displayName + " " + download.text + " " + upload.text
        Accessible.description: systemName

        HoverHandler { id: hover }
        Item {
            implicitWidth: 14
            implicitHeight: symbol.implicitHeight
            Symbol {
                id: symbol
                objectName: "symbol"
                x: Look.centred(parent.width, width)
                y: Look.centred(parent.height, height)
                name: PanelGraphics.interfaceSymbol(interfaceRow.info)
                fontSize: 9
                color: Look.withOpacity(interfaceRow.moduleColor, 0.7)
            }
            Loader {
                objectName: "nameTooltip"
                active: hover.hovered && interfaceRow.systemName !== ""
                anchors.left: parent.left
                anchors.bottom: parent.top
                // Before Qt 6.5 a file cannot declare that a component uses an outer id (ComponentBehavior).
                sourceComponent: Tooltip {
                    text: interfaceRow.systemName // qmllint disable unqualified
                    isWanted: true
                }
            }
        }
        PlainText {
            text: interfaceRow.info.displayName
            size: 10
            color: Look.valueLabel
            Layout.fillWidth: true
        }
        RateText {
            id: download
            text: "\u2193 " + PanelTexts.formatRate(interfaceRow.info.downloadSpeed)
        }
        RateText {
            id: upload
            text: "\u2191 " + PanelTexts.formatRate(interfaceRow.info.uploadSpeed)
        }
    }
}
