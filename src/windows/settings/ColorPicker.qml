import QtQuick
import QtQuick.Templates as T
import Orvelle.Common
import Orvelle.Settings

/// Chooses a colour; what is chosen takes effect at once. It closes with Escape and when the user clicks
/// elsewhere.
T.Popup {
    id: picker

    required property string title
    required property color color
    signal picked(color picked)

    readonly property real gap: 6
    /// Where there is no room below, so that it does not cover the color well that it belongs to.
    property bool opensUpwards: false
    onAboutToShow: {
        const bottom = parent.mapToItem(null, 0, parent.height).y;
        opensUpwards = bottom + gap + height + margins > parent.Window.height;
    }

    /// Shows where the keys act from the start: for those who opened it with them.
    function showKeys() {
        (contentItem as ColorParts).showKeys();
    }

    x: parent.width - width + 6 // beyond the color wells under it
    y: opensUpwards ? -height - gap : parent.height + gap
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
