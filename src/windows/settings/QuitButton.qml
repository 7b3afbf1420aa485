import QtQuick
import QtQuick.Templates as T
import Orvelle.Common
import Orvelle.Settings

T.AbstractButton {
    id: button

    text: "Quit"
    padding: 4
    leftPadding: 8
    rightPadding: 8
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
        color: button.down ? Look.pressed : button.hovered ? Look.hovered : Look.clear
        KeyRing {
            control: button
            radius: 5
        }
    }
    contentItem: PlainText {
        text: button.text
        size: 10
        weight: Font.Medium
        color: Look.red
        Accessible.ignored: true
    }
}
