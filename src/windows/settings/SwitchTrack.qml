import QtQuick
import Orvelle.Charts
import Orvelle.Common

/// A switch: a knob that slides in a track.
Rectangle {
    id: track

    required property bool isOn
    /// Of the knob, from 0 to 1.
    required property real position
    required property bool isHeld

    implicitWidth: 28
    implicitHeight: 16
    radius: height / 2
    color: isOn ? Look.blue : Look.pressed

    Rectangle {
        x: 2 + track.position * (track.width - width - 4)
        y: 2
        width: 12
        height: 12
        radius: 6
        color: Look.white
        Behavior on x {
            enabled: !track.isHeld && !AnimationClock.reduced
            NumberAnimation { duration: 100 }
        }
    }
}
