import QtQuick
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
        color: Look.faded(Look.white, tap.pressed ? 0.16 : hover.hovered ? 0.08 : 0)
        border.width: button.activeFocus ? 1 : 0
        border.color: button.focusColor
    }
    Symbol {
        anchors.centerIn: parent
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
    PanelTooltip {
        id: tooltip
        text: "Open Orvelle Settings"
        isWanted: hover.hovered && !tap.pressed
        anchors.right: parent.right
        anchors.bottom: parent.top
        anchors.bottomMargin: 4
    }
}
