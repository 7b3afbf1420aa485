import QtQuick
import Orvelle.Common

/// Scrolls an item that may be taller than itself, and marks the position. Keys scroll too.
Flickable {
    id: scroller

    required property Item content
    readonly property real lineStep: 24
    readonly property real revealMargin: 12

    function scrollTo(position) {
        contentY = Math.max(0, Math.min(position, contentHeight - height));
    }
    /// Brings an item of the content into view, with a margin for the focus ring around it.
    function reveal(item) {
        const top = item.mapToItem(contentItem, 0, 0).y - revealMargin;
        const bottom = top + item.height + 2 * revealMargin;
        if (top < contentY)
            scrollTo(top);
        else if (bottom > contentY + height)
            scrollTo(bottom - height);
    }
    /// Goes back to the top, with the focus in no item of the content.
    function reset() {
        cancelFlick();
        contentY = 0;
        focus = true;
    }

    clip: true
    contentWidth: width
    contentHeight: content.implicitHeight
    boundsBehavior: Flickable.StopAtBounds
    interactive: contentHeight > height
    Component.onCompleted: {
        content.parent = contentItem;
        content.width = Qt.binding(() => scroller.width);
        content.height = Qt.binding(() => Math.max(scroller.height, scroller.content.implicitHeight));
    }
    onContentHeightChanged: scrollTo(contentY)

    Keys.onUpPressed: scrollTo(contentY - lineStep)
    Keys.onDownPressed: scrollTo(contentY + lineStep)
    Keys.onPressed: event => {
        event.accepted = true;
        if (event.key === Qt.Key_PageUp)
            scrollTo(contentY - height);
        else if (event.key === Qt.Key_PageDown)
            scrollTo(contentY + height);
        else if (event.key === Qt.Key_Home)
            scrollTo(0);
        else if (event.key === Qt.Key_End)
            scrollTo(contentHeight);
        else
            event.accepted = false;
    }

    Rectangle {
        parent: scroller
        visible: scroller.interactive
        x: scroller.width - width - 3
        y: 3 + (scroller.height - 6) * scroller.visibleArea.yPosition
        width: 4
        height: Math.max(20, (scroller.height - 6) * scroller.visibleArea.heightRatio)
        radius: 2
        color: Look.scrollMark
    }
}
