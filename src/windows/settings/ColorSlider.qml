import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Orvelle.Common
import Orvelle.Settings

/// Sets one part of a colour; the track shows what each place stands for.
T.Slider {
    id: slider

    required property string name
    /// Seven colours, evenly spread from the left end to the right one.
    required property var colors
    required property color handleColor

    Layout.fillWidth: true
    implicitHeight: 18
    stepSize: 0.01
    focusPolicy: Qt.TabFocus
    Accessible.name: name

    background: Item {
        Rectangle {
            x: 1
            width: parent.width - 2
            height: 12
            y: Look.centred(parent.height, height)
            radius: 6
            gradient: Gradient { // a stop for each corner of the circle of hues
                orientation: Gradient.Horizontal
                GradientStop { position: 0 / 6; color: slider.colors[0] }
                GradientStop { position: 1 / 6; color: slider.colors[1] }
                GradientStop { position: 2 / 6; color: slider.colors[2] }
                GradientStop { position: 3 / 6; color: slider.colors[3] }
                GradientStop { position: 4 / 6; color: slider.colors[4] }
                GradientStop { position: 5 / 6; color: slider.colors[5] }
                GradientStop { position: 6 / 6; color: slider.colors[6] }
            }
        }
    }
    handle: Rectangle {
        x: slider.visualPosition * (slider.width - width)
        y: (slider.height - height) / 2
        width: 18
        height: 18
        radius: 9
        color: slider.handleColor
        border.width: 2
        border.color: Look.white
        KeyRing {
            control: slider
            anchors.margins: -3
            radius: 12
        }
    }
}
