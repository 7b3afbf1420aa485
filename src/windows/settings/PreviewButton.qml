import QtQuick
import Orvelle.Common
import Orvelle.Settings

/// Chooses the style that its preview shows.
ChoiceButton {
    id: button

    padding: 3

    background: Rectangle {
        radius: 6
        color: button.down ? Look.pressed : button.hovered ? Look.hovered : Look.clear
        KeyRing {
            control: button
            radius: 6
        }
    }
}
