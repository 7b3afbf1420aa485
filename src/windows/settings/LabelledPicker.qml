import QtQuick
import QtQuick.Layouts
import Orvelle.Common
import Orvelle.Settings

/// A picker at the end of the row behind its name, or below its name if the row is too short.
GridLayout {
    id: row

    required property string name
    required property SettingsStore settings
    /// The name of the store's property.
    required property string setting
    required property var choices
    readonly property bool isOneLine: label.implicitWidth + columnSpacing + place.implicitWidth <= width

    Layout.fillWidth: true
    columns: isOneLine ? 2 : 1
    columnSpacing: 8
    rowSpacing: 8

    SectionLabel {
        id: label
        Layout.fillWidth: true
        text: row.name
    }
    RowLayout {
        id: place
        Layout.fillWidth: !row.isOneLine

        SegmentedPicker {
            name: row.name
            settings: row.settings
            setting: row.setting
            choices: row.choices
        }
    }
}
