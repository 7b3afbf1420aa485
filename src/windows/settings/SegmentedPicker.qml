import QtQuick
import QtQuick.Layouts
import Orvelle.Common
import Orvelle.Settings

/// A setting's values side by side in one frame, in more rows where they do not fit in one; a symbol stands above
/// its name.
SettingGroup {
    id: picker

    readonly property var needed: SettingsRules.fittingColumns(neededWidths(), 0, width)
    readonly property var widths: SettingsRules.sharedWidths(needed, width)
    readonly property real rowHeight: choices.some(choice => choice.symbol !== "") ? 42 : 24

    Layout.fillWidth: true
    implicitWidth: Math.max(200, SettingsRules.widthOfOneRow(neededWidths()))
    columns: widths.length

    Rectangle {
        anchors.fill: parent
        z: -1
        radius: 6
        color: Look.hovered
    }
    // Only from Qt 6.5 on can a file say that a component may use an outer id (ComponentBehavior).
    delegate: SegmentButton {
        group: picker // qmllint disable unqualified
        width: picker.widths[index % picker.columns] ?? 0 // qmllint disable unqualified
        height: picker.rowHeight // qmllint disable unqualified
    }
}
