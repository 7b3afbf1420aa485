import QtQuick
import Orvelle.Common
import Orvelle.Settings

/// Shows a colour; a press opens its picker.
PushButton {
    id: well

    required property color color
    readonly property ColorPicker picker: loader.item as ColorPicker
    readonly property bool isOpen: picker !== null && picker.opened
    property bool isOpenedByKeys: false
    signal picked(color picked)

    implicitWidth: 24
    implicitHeight: 18
    onClicked: {
        loader.active = true;
        if (isOpen)
            picker.close();
        else
            open();
    }
    function open() {
        isOpenedByKeys = visualFocus;
        picker.open();
    }
    onVisibleChanged: if (!visible) loader.active = false
    Accessible.description: ColorConversion.hexFromColor(color)

    background: Rectangle {
        radius: 4
        color: well.color
        border.width: 1
        border.color: well.hovered || well.isOpen ? Look.white : Look.separator
        KeyRing {
            control: well
            anchors.margins: -3
            radius: 6
        }
    }
    Tooltip {
        objectName: "tooltip"
        text: well.text
        isWanted: well.hovered && !well.isOpen
        anchors.right: parent.right
        anchors.bottom: parent.top
        anchors.bottomMargin: 4
    }
    Loader {
        id: loader
        active: false
        // Only Qt 6.5 and later let a file declare that its components use outer ids (ComponentBehavior).
        sourceComponent: ColorPicker {
            parent: well // qmllint disable unqualified
            title: well.text // qmllint disable unqualified
            color: well.color // qmllint disable unqualified
            isOpenedByKeys: well.isOpenedByKeys // qmllint disable unqualified
            onPicked: picked => well.picked(picked) // qmllint disable unqualified
            onClosed: {
                // qmllint disable unqualified
                well.forceActiveFocus(well.isOpenedByKeys ? Qt.TabFocusReason : Qt.PopupFocusReason);
                // qmllint enable unqualified
                Qt.callLater(() => loader.active = false); // qmllint disable unqualified
            }
        }
    }
}
