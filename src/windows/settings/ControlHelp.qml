import QtQuick
import QtQuick.Templates as T
import Orvelle.Common

/// A help text near a control that the pointer rests on or that the keys brought the focus to; nothing where there
/// is no text.
Loader {
    id: help

    required property T.Control control
    required property string text

    active: text !== ""
    // Only from Qt 6.5 on can a file say that a component may use an outer id (ComponentBehavior).
    sourceComponent: Tooltip {
        readonly property Item control: help.control // qmllint disable unqualified
        readonly property real gap: 4
        readonly property real margin: 8

        /// Above the control, or below it where there is no room; over whatever else scrolls with it.
        function stand() {
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
        onVisibleChanged: if (visible) stand()
    }
}
