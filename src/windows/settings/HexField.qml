import QtQuick
import QtQuick.Templates as T
import Orvelle.Common
import Orvelle.Settings

/// A colour as "#" and six hexadecimal digits, which can be edited. What is no colour is put back in the end.
T.TextField {
    id: field

    required property color pickedColor
    signal picked(color picked)

    function showColor() {
        text = SettingsRules.hexFromColor(pickedColor);
    }

    implicitWidth: 76
    implicitHeight: 24
    leftPadding: 6
    rightPadding: 6
    font: Look.fonts.monospaced(11, Font.Normal)
    verticalAlignment: TextInput.AlignVCenter
    color: Look.primaryLabel
    selectByMouse: true
    selectionColor: Look.blue
    selectedTextColor: Look.white
    maximumLength: 7
    validator: RegularExpressionValidator { regularExpression: /#?[0-9A-Fa-f]{6}/ }
    onTextEdited: if (acceptableInput) picked(SettingsRules.colorFromHex(text, Look.white))
    onPickedColorChanged: if (!activeFocus) showColor()
    onEditingFinished: showColor()
    onActiveFocusChanged: if (!activeFocus) showColor()
    Component.onCompleted: showColor()
    Accessible.name: "Hexadecimal digits of the color"

    background: Rectangle {
        radius: 5
        color: Look.hovered
        border.width: field.activeFocus ? 1 : 0
        border.color: Look.blue
    }
}
