import QtQuick
import QtQuick.Layouts
import Orvelle.Common
import Orvelle.Panels

/// What the panels have in common: sections below each other.
Item {
    id: body

    required property SettingsStore settings
    required property ThemeManager themeManager
    readonly property ModuleColors colors: ModuleColors {
        settings: body.settings
        themeManager: body.themeManager
    }
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
    }
}
