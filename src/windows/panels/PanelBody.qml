import QtQuick
import QtQuick.Layouts
import Orvelle.Common
import Orvelle.Panels

/// The body of a panel: a header with the module's symbol and name, and sections below it.
Item {
    id: body

    required property SettingsStore settings
    required property ThemeManager themeManager
    required property string symbol
    required property string title
    required property color moduleColor
    readonly property ModuleColors colors: ModuleColors {
        settings: body.settings
        themeManager: body.themeManager
    }
    property alias hasHeader: header.visible
    property alias headerItems: header.data ///< at the end of the header
    property alias spacing: sections.spacing
    default property alias sections: sections.data

    readonly property real padding: 16

    implicitWidth: 320
    implicitHeight: sections.implicitHeight + 2 * padding

    ColumnLayout {
        id: sections
        x: body.padding
        y: body.padding
        width: body.width - 2 * body.padding
        spacing: 10

        RowLayout {
            id: header
            Layout.fillWidth: true
            spacing: 6

            Symbol {
                name: body.symbol
                fontSize: 14
                weight: Font.DemiBold
                color: body.moduleColor
            }
            PlainText {
                text: body.title
                size: 14
                weight: Font.Bold
                Layout.fillWidth: true
                Accessible.role: Accessible.Heading
            }
        }
        Divider { visible: header.visible }
    }
}
