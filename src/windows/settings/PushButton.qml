import QtQuick
import QtQuick.Templates as T
import Orvelle.Common
import Orvelle.Settings

/// A button that the pointer, Space, Return and assistive programs press.
T.AbstractButton {
    id: button

    property color hoveredColor: Look.hovered

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    focusPolicy: Qt.TabFocus
    hoverEnabled: true
    Keys.onReturnPressed: clicked()
    Keys.onEnterPressed: clicked()
    Accessible.name: text
    Accessible.onPressAction: clicked()

    background: Rectangle {
        radius: 5
        color: button.down ? Look.pressed : button.hovered ? button.hoveredColor : Look.clear
        KeyRing {
            control: button
            radius: 5
        }
    }
}
