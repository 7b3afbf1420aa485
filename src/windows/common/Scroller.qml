import QtQuick
import Orvelle.Common

/// Shows an item that may be higher than there is room, with a mark of where one is. Keys move it too.
Flickable {
    id: scroller

    required property Item content
    readonly property real lineStep: 24
    readonly property real revealMargin: 12

    function scrollTo(position) {
        contentY = Math.max(0, Math.min(position, contentHeight - height));
    }
    /// Brings `item`, which is inside the content, into view, with what is around it: the mark of the focus.
    function reveal(item) {
        const top = item.mapToItem(contentItem, 0, 0).y - revealMargin;
        const bottom = top + item.height + 2 * revealMargin;
        if (top < contentY)
            scrollTo(top);
        else if (bottom > contentY + height)
            scrollTo(bottom - height);
    }
    /// Stands at the top with the keys in no item of the content, as when it was new.
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
