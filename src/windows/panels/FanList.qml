import QtQuick
import QtQuick.Layouts
import Orvelle.Charts
import Orvelle.Common
import Orvelle.Panels

/// The fans, whose icons turn with them. One timer turns all icons: twenty steps a second look like turning
/// and cost little to paint.
ColumnLayout {
    id: list

    required property var fans
    required property color moduleColor
    property var fanAngles: ({}) // degrees by the fan's index

    readonly property real stepSeconds: 0.05
    readonly property bool isTurning: visible && !AnimationClock.reduced
                                      && Array.from(fans).some(fan => PanelGraphics.isFanTurning(fan.speed))

    function turn() {
        const angles = {};
        for (const fan of Array.from(fans)) {
            const turnSeconds = PanelGraphics.fanTurnSeconds(fan.speed);
            const step = turnSeconds > 0 ? 360 * stepSeconds / turnSeconds : 0;
            angles[fan.index] = ((fanAngles[fan.index] ?? 0) + step) % 360;
        }
        fanAngles = angles;
    }

    Layout.fillWidth: true
    spacing: 4

    Timer {
        objectName: "fanAngleTimer"
        interval: 1000 * list.stepSeconds
        repeat: true
        running: list.isTurning && list.Window.window !== null && list.Window.visibility !== Window.Hidden
        onTriggered: list.turn()
    }
    SectionTitle { text: "FAN SPEEDS" }
    Repeater {
        objectName: "fans"
        model: RecordModel {
            key: "index"
            records: list.fans
        }
        // Only from Qt 6.5 on can a file say that a component may use an outer id (ComponentBehavior).
        delegate: FanRow {
            required property var record
            fan: record
            baseAngle: list.fanAngles[record.index] ?? 0 // qmllint disable unqualified
            moduleColor: list.moduleColor // qmllint disable unqualified
        }
    }
}
