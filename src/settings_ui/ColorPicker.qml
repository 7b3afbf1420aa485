import QtQuick
import QtQuick.Templates as T
import Orvelle.Look
import Orvelle.SettingsUI

/// Chooses a colour; what is chosen takes effect at once. It closes with Escape and when the user clicks
/// elsewhere.
T.Popup {
    id: picker

    required property string title
    required property color color
    signal picked(color picked)

    x: parent.width - width
    y: parent.height + 6
    width: 220
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    margins: 8
    padding: 12
    focus: true
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutsideParent

    background: Rectangle {
        radius: 8
        color: Look.popup
        border.width: 1
        border.color: Look.pressed
    }
    contentItem: ColorParts {
        color: picker.color
        focus: true
        onPicked: picked => picker.picked(picked)
        Accessible.role: Accessible.Dialog
        Accessible.name: picker.title
    }
}
