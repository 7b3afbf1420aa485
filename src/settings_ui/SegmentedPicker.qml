import QtQuick
import Orvelle.Look
import Orvelle.SettingsUI

/// A setting's values side by side in one frame; a symbol stands above its name.
SettingGroup {
    id: picker

    readonly property var widths: SettingsRules.sharedWidths(neededWidths(), width)

    implicitWidth: 200
    implicitHeight: choices.some(choice => choice.symbol !== "") ? 42 : 24

    Rectangle {
        anchors.fill: parent
        z: -1
        radius: 6
        color: Look.hovered
    }
    delegate: SegmentButton {
        group: picker // qmllint disable unqualified
        width: picker.widths[index] ?? 0 // qmllint disable unqualified
        height: picker.height // qmllint disable unqualified
    }
}
