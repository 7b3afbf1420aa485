import QtQuick
import QtQuick.Layouts
import QtQuick.Templates as T
import Orvelle.Common
import Orvelle.Settings

/// Chooses a colour, which applies at once. Escape and a click elsewhere close it.
T.Popup {
    id: picker

    required property string title
    required property color color
    /// Whether to mark the focused slider from the start.
    required property bool isOpenedByKeys
    signal picked(color picked)

    readonly property real gap: 6
    /// Without room below, it opens above the colour well so as not to cover it.
    property bool opensUpwards: false
    onAboutToShow: {
        const bottom = parent.mapToItem(null, 0, parent.height).y;
        opensUpwards = bottom + gap + height + margins > parent.Window.height;
    }

    x: parent.width - width + 6 // covers the right edge of the wells below
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
    contentItem: ColorSliders {
        color: picker.color
        marksFocus: picker.opened && picker.isOpenedByKeys
        focus: true
        onPicked: picked => picker.picked(picked)
        Accessible.role: Accessible.Dialog
        Accessible.name: picker.title
    }

    /// Edits a colour by its hue, saturation and brightness, and by its hexadecimal digits.
    component ColorSliders: FocusScope {
        id: editor

        required property color color
        required property bool marksFocus
        signal picked(color picked)

        /// Stored beside the colour, because a grey one has no hue.
        property real hue: 0
        property real saturation: 0
        property real brightness: 0
        readonly property color shown: ColorConversion.colorFromHSB(hue, saturation, brightness)

        /// Adopts a colour that was set from outside.
        function follow() {
            if (ColorConversion.hexFromColor(color) === ColorConversion.hexFromColor(shown))
                return;
            const adopted = ColorConversion.hsbFromColor(color, hue);
            hue = adopted.hue;
            saturation = adopted.saturation;
            brightness = adopted.brightness;
        }
        /// Seven shades for evenly spaced values from 0 to 1.
        function shades(shade) {
            return Array.from({length: 7}, (nothing, index) => shade(index / 6));
        }

        implicitWidth: rows.implicitWidth
        implicitHeight: rows.implicitHeight
        onColorChanged: follow()
        onMarksFocusChanged: if (marksFocus) firstSlider.focusReason = Qt.TabFocusReason
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
                value: editor.hue
                colors: editor.shades(hue => Qt.hsva(hue, 1, 1, 1))
                handleColor: Qt.hsva(editor.hue, 1, 1, 1)
                KeyNavigation.backtab: digits
                onMoved: { editor.hue = value; editor.picked(editor.shown); }
            }
            ColorSlider {
                objectName: "saturation"
                name: "Saturation"
                value: editor.saturation
                colors: editor.shades(saturation => Qt.hsva(editor.hue, saturation, editor.brightness, 1))
                handleColor: editor.shown
                onMoved: { editor.saturation = value; editor.picked(editor.shown); }
            }
            ColorSlider {
                objectName: "brightness"
                name: "Brightness"
                value: editor.brightness
                colors: editor.shades(brightness => Qt.hsva(editor.hue, editor.saturation, brightness, 1))
                handleColor: editor.shown
                onMoved: { editor.brightness = value; editor.picked(editor.shown); }
            }
            RowLayout {
                spacing: 8

                Rectangle {
                    Layout.fillWidth: true
                    implicitHeight: 24
                    radius: 5
                    color: editor.shown
                    border.width: 1
                    border.color: Look.pressed
                }
                HexField {
                    id: digits
                    objectName: "hex"
                    KeyNavigation.tab: firstSlider // some releases of Qt would leave the picker
                    pickedColor: editor.shown
                    onPicked: picked => editor.picked(picked)
                }
            }
        }
    }

    /// Sets one component of a colour. The track shows the colour at each position.
    component ColorSlider: T.Slider {
        id: slider

        required property string name
        /// Seven, evenly spaced from the left end to the right.
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
                gradient: Gradient { // the hues need a stop for each pure colour
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

    /// A colour as "#" and six hexadecimal digits, which can be edited. An invalid text reverts in the end.
    component HexField: T.TextField {
        id: field

        required property color pickedColor
        signal picked(color picked)

        function showColor() {
            text = ColorConversion.hexFromColor(pickedColor);
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
        onTextEdited: if (acceptableInput) picked(ColorConversion.colorFromHex(text, Look.white))
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
}
