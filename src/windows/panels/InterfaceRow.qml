import QtQuick
import QtQuick.Layouts
import Orvelle.Common
import Orvelle.Panels

/// A network interface and its present speeds.
RowLayout {
    id: row

    required property var info
    required property color moduleColor
    /// The system's name, where another is shown.
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
            name: PanelGraphics.interfaceSymbol(row.info)
            fontSize: 9
            color: Look.withOpacity(row.moduleColor, 0.7)
        }
        Loader {
            objectName: "nameTooltip"
            active: hover.hovered && row.systemName !== ""
            anchors.left: parent.left
            anchors.bottom: parent.top
            // Only from Qt 6.5 on can a file say that a component may use an outer id (ComponentBehavior).
            sourceComponent: Tooltip {
                text: row.systemName // qmllint disable unqualified
                isWanted: true
            }
        }
    }
    PlainText {
        text: row.info.displayName
        size: 10
        color: Look.valueLabel
        Layout.fillWidth: true
    }
    PlainText {
        id: download
        text: "\u2193 " + PanelTexts.formatRate(row.info.downloadSpeed)
        size: 9
        monospaced: true
        color: Look.secondaryLabel
        horizontalAlignment: Text.AlignRight
        Layout.preferredWidth: Math.max(68, implicitWidth) // speeds stand below each other
    }
    PlainText {
        id: upload
        text: "\u2191 " + PanelTexts.formatRate(row.info.uploadSpeed)
        size: 9
        monospaced: true
        color: Look.secondaryLabel
        horizontalAlignment: Text.AlignRight
        Layout.preferredWidth: Math.max(68, implicitWidth)
    }
}
