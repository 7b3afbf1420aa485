import QtQuick
import Orvelle.Common
import Orvelle.Panels

/// The frame of every panel: content that scrolls where it is too tall, above a footer with the settings button.
FocusScope {
    id: container

    required property ThemeManager themeManager
    required property Item content
    required property real cornerRadius
    signal openSettings()

    width: 320
    height: 500
    focus: true
    Keys.forwardTo: [scroller] // also from the footer

    readonly property bool isWindowShown: Window.visibility !== Window.Hidden
    onIsWindowShownChanged: if (!isWindowShown) scroller.reset()

    readonly property Item focusedItem: Window.activeFocusItem
    onFocusedItemChanged: {
        for (let item = focusedItem; item !== null; item = item.parent) {
            if (item === content)
                scroller.reveal(focusedItem);
        }
    }

    Rectangle {
        anchors.fill: parent
        radius: container.cornerRadius
        color: container.themeManager.currentTheme.backgroundColor
        border.width: radius > 0 ? 1 / Screen.devicePixelRatio : 0
        border.color: Look.separator
    }
    Scroller {
        id: scroller
        objectName: "scroller"
        width: parent.width
        anchors.top: parent.top
        anchors.bottom: divider.top
        content: container.content
        focus: true
    }
    Divider {
        id: divider
        width: parent.width
        anchors.bottom: footer.top
    }
    Item {
        id: footer
        objectName: "footer"
        width: parent.width
        height: button.height + 2 * 8
        anchors.bottom: parent.bottom

        Item {
            id: button
            objectName: "settingsButton"
            anchors.right: parent.right
            anchors.rightMargin: 12
            y: Look.centred(parent.height, height)
            implicitWidth: 26
            implicitHeight: 26
            activeFocusOnTab: true

            Accessible.role: Accessible.Button
            Accessible.name: tooltip.text
            Accessible.focusable: true
            Accessible.onPressAction: container.openSettings()
            Keys.onSpacePressed: container.openSettings()
            Keys.onReturnPressed: container.openSettings()
            Keys.onEnterPressed: container.openSettings()

            Rectangle {
                anchors.fill: parent
                radius: 6
                color: tap.pressed ? Look.pressed : hover.hovered ? Look.hovered : Look.clear
            }
            FocusRing {
                control: button
                radius: 6
                border.color: container.themeManager.currentTheme.accentColor
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
                onTapped: container.openSettings()
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
    }
}
