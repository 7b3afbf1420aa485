import QtQuick
import QtQuick.Layouts
import Orvelle.Common
import Orvelle.Settings

/// A colour by its hue, saturation and brightness, and by its hexadecimal digits.
FocusScope {
    id: parts

    required property color color
    signal picked(color picked)

    /// Kept apart from the colour, which knows no hue while it is grey.
    property real hue: 0
    property real saturation: 0
    property real brightness: 0
    readonly property color shown: SettingsRules.colorOfParts(hue, saturation, brightness)

    /// Takes over a colour that did not come from here.
    function follow() {
        if (SettingsRules.hexFromColor(color) === SettingsRules.hexFromColor(shown))
            return;
        const taken = SettingsRules.partsOfColor(color, hue);
        hue = taken.hue;
        saturation = taken.saturation;
        brightness = taken.brightness;
    }
    function showKeys() {
        firstSlider.focusReason = Qt.TabFocusReason;
    }
    /// Seven shades, of which the first stands for 0 and the last for 1.
    function shades(shade) {
        return Array.from({length: 7}, (nothing, index) => shade(index / 6));
    }

    implicitWidth: rows.implicitWidth
    implicitHeight: rows.implicitHeight
    onColorChanged: follow()
    Component.onCompleted: follow()

    ColumnLayout {
        id: rows
        width: parent.width
        spacing: 10

        ColorSlider {
            id: firstSlider
            objectName: "hue"
            focus: true
            name: "Hue"
            value: parts.hue
            colors: parts.shades(hue => Qt.hsva(hue, 1, 1, 1))
            handleColor: Qt.hsva(parts.hue, 1, 1, 1)
            KeyNavigation.backtab: digits
            onMoved: { parts.hue = value; parts.picked(parts.shown); }
        }
        ColorSlider {
            objectName: "saturation"
            name: "Saturation"
            value: parts.saturation
            colors: parts.shades(saturation => Qt.hsva(parts.hue, saturation, parts.brightness, 1))
            handleColor: parts.shown
            onMoved: { parts.saturation = value; parts.picked(parts.shown); }
        }
        ColorSlider {
            objectName: "brightness"
            name: "Brightness"
            value: parts.brightness
            colors: parts.shades(brightness => Qt.hsva(parts.hue, parts.saturation, brightness, 1))
            handleColor: parts.shown
            onMoved: { parts.brightness = value; parts.picked(parts.shown); }
        }
        RowLayout {
            spacing: 8

            Rectangle {
                Layout.fillWidth: true
                implicitHeight: 24
                radius: 5
                color: parts.shown
                border.width: 1
                border.color: Look.pressed
            }
            HexField {
                id: digits
                objectName: "hex"
                KeyNavigation.tab: firstSlider // some releases of Qt would leave the picker
                pickedColor: parts.shown
                onPicked: picked => parts.picked(picked)
            }
        }
    }
}
