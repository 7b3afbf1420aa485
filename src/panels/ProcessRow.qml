import QtQuick
import QtQuick.Layouts
import Orvelle.Charts
import Orvelle.Look
import Orvelle.Panels

/// A process: its name, a bar that compares it with the heaviest, and its value.
RowLayout {
    id: row

    required property var process
    required property int mode
    required property color accentColor
    required property real maxValue
    readonly property real fraction: PanelRules.processBarFraction(process, mode, maxValue)
    property real barWidth: track.width * fraction
    property bool isComplete: false

    Layout.fillWidth: true
    Layout.preferredHeight: 18
    spacing: 8

    Accessible.role: Accessible.ListItem
    Accessible.name: name.text + " " + value.text

    // A spring of response 0.4 s and damping fraction 0.7, by the animation's step of 16 ms.
    Behavior on barWidth {
        enabled: row.isComplete && !Motion.reduced
        SpringAnimation {
            spring: 3.95
            damping: 0.35
            epsilon: 0.1
        }
    }
    Component.onCompleted: isComplete = true

    PlainText {
        id: name
        text: row.process.name
        weight: Font.Medium
        color: Look.nameLabel
        Layout.preferredWidth: 90
        Layout.maximumWidth: 90
    }
    Rectangle {
        id: track
        Layout.fillWidth: true
        implicitHeight: 8
        radius: 2
        color: Look.listTrack

        Rectangle {
            objectName: "fill"
            width: Math.max(0, Math.min(row.barWidth, track.width))
            height: track.height
            radius: track.radius
            gradient: Gradient {
                orientation: Gradient.Horizontal
                GradientStop { position: 0; color: Look.faded(row.accentColor, 0.7) }
                GradientStop { position: 1; color: row.accentColor }
            }
        }
    }
    PlainText {
        id: value
        text: PanelRules.processValueText(row.process, row.mode)
        size: 10
        weight: Font.Medium
        monospaced: true
        color: Look.secondaryLabel
        horizontalAlignment: Text.AlignRight
        elide: Text.ElideNone
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 7
        Layout.preferredWidth: 50
        Layout.maximumWidth: 50
    }
}
