import QtQuick
import Orvelle.Common
import Orvelle.Panels

Item {
    id: button

    required property color focusColor
    signal pressed()

    implicitWidth: 26
    implicitHeight: 26
    activeFocusOnTab: true

    Accessible.role: Accessible.Button
    Accessible.name: tooltip.text
    Accessible.focusable: true
    Accessible.onPressAction: button.pressed()
    Keys.onSpacePressed: button.pressed()
    Keys.onReturnPressed: button.pressed()
    Keys.onEnterPressed: button.pressed()

    Rectangle {
        anchors.fill: parent
        radius: 6
        color: tap.pressed ? Look.pressed : hover.hovered ? Look.hovered : Look.clear
    }
    FocusRing {
        control: button
        radius: 6
        border.color: button.focusColor
    }
    Symbol {
        x: Look.centred(parent.width, width)
        y: Look.centred(parent.height, height)
        name: "gearshape"
        fontSize: 13
        weight: Font.DemiBold
        color: hover.hovered ? Look.primaryLabel : Look.secondaryLabel
    }
    HoverHandler { id: hover }
    TapHandler {
        id: tap
        onTapped: button.pressed()
    }
    Tooltip {
        id: tooltip
        text: "Open Orvelle Settings"
        objectName: "tooltip"
        isWanted: (hover.hovered || button.activeFocus) && !tap.pressed
        anchors.right: parent.right
        anchors.bottom: parent.top
        anchors.bottomMargin: 4
    }
}
