import QtQuick

/// Lies under controls and moves the window when the mouse drags what is no control. A finger scrolls there.
MouseArea {
    id: mover

    property point start
    /// Whether a mouse is pressed here and has not moved the window yet.
    property bool isArmed: false

    acceptedButtons: Qt.LeftButton
    onPressed: mouse => {
        start = Qt.point(mouse.x, mouse.y);
        isArmed = mouse.source === Qt.MouseEventNotSynthesized;
        preventStealing = isArmed;
    }
    onReleased: isArmed = false
    onCanceled: isArmed = false
    onPositionChanged: mouse => {
        const distance = Math.max(Math.abs(mouse.x - start.x), Math.abs(mouse.y - start.y));
        if (!isArmed || distance < drag.threshold)
            return;
        isArmed = false;
        Window.window.startSystemMove();
    }
}
