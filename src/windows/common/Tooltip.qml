import QtQuick
import Orvelle.Common

/// A short text about the control under the pointer or with the focus. It appears after a rest, and disappears
/// when there was time to read it.
Rectangle {
    id: tooltip

    required property string text
    required property bool isWanted
    property int restingMilliseconds: 700
    property int readingMilliseconds: 5000

    visible: false
    width: label.implicitWidth + 12
    height: label.implicitHeight + 6
    radius: 4
    color: Look.tooltip
    border.width: 1
    border.color: Look.separator

    onIsWantedChanged: if (!isWanted) visible = false

    Timer {
        interval: tooltip.restingMilliseconds
        running: tooltip.isWanted
        onTriggered: tooltip.visible = true
    }
    Timer {
        interval: tooltip.readingMilliseconds
        running: tooltip.visible
        onTriggered: tooltip.visible = false
    }
    PlainText {
        id: label
        x: Look.centred(parent.width, width)
        y: Look.centred(parent.height, height)
        text: tooltip.text
    }
}
