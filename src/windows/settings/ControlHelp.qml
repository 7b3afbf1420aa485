import QtQuick
import QtQuick.Templates as T
import Orvelle.Common

/// The help text of a control under the pointer or with the keyboard focus, if it has one.
Loader {
    id: help

    required property T.Control control
    required property string text

    active: text !== ""
    // Only Qt 6.5 and later let a file declare that its components use outer ids (ComponentBehavior).
    sourceComponent: Tooltip {
        readonly property Item control: help.control // qmllint disable unqualified
        readonly property real gap: 4
        readonly property real margin: 8

        /// Above the control, or below it without room above. The content that scrolls is the parent, so that no
        /// sibling covers the text.
        function moveToControl() {
            let scroller = control.parent;
            while (!(scroller instanceof Flickable))
                scroller = scroller.parent;
            parent = scroller.contentItem;
            const corner = control.mapToItem(parent, 0, 0);
            const above = corner.y - gap - height;
            x = Math.max(margin, Math.min(corner.x, scroller.width - margin - width));
            y = above >= scroller.contentY + margin ? above : corner.y + control.height + gap;
        }

        objectName: "help"
        z: 1
        text: help.text // qmllint disable unqualified
        isWanted: help.control.hovered || help.control.visualFocus // qmllint disable unqualified
        onVisibleChanged: if (visible) moveToControl()
    }
}
