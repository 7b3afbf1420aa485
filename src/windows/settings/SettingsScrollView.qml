import QtQuick
import Orvelle.Common
import Orvelle.Settings

/// The content of the settings window: the settings, which scroll, under what went wrong with them.
FocusScope {
    id: scrollView

    required property SettingsStore settings
    required property ThemeManager themeManager
    /// Null, or with a text `error`.
    required property var launchAtLogin
    readonly property color color: Look.window
    signal quitApp()

    focus: true

    Keys.onEscapePressed: Window.window.close()
    Keys.onPressed: event => {
        event.accepted = event.key === Qt.Key_W && event.modifiers === Qt.ControlModifier;
        if (event.accepted)
            Window.window.close();
    }

    readonly property bool isWindowShown: Window.visibility !== Window.Hidden
    onIsWindowShownChanged: {
        if (isWindowShown)
            return;
        view.close();
        scroller.reset();
    }

    readonly property Item focusedItem: Window.activeFocusItem
    onFocusedItemChanged: {
        for (let item = focusedItem; item !== null; item = item.parent) {
            if (item === view)
                scroller.reveal(focusedItem);
        }
    }

    Column {
        id: notices
        width: parent.width

        NoticeBanner {
            objectName: "saveNotice"
            width: parent.width
            text: scrollView.settings.saveError !== ""
                  ? "Settings could not be saved: " + scrollView.settings.saveError : ""
        }
        NoticeBanner {
            objectName: "loginNotice"
            width: parent.width
            text: scrollView.launchAtLogin !== null ? scrollView.launchAtLogin.error : ""
        }
    }
    SettingsView {
        id: view
        settings: scrollView.settings
        themeManager: scrollView.themeManager
        onQuitApp: scrollView.quitApp()
    }
    Scroller {
        id: scroller
        objectName: "scroller"
        anchors.top: notices.bottom
        anchors.bottom: parent.bottom
        width: parent.width
        content: view
        focus: true
    }
}
