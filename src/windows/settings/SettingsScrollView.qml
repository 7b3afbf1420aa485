import QtQuick
import Orvelle.Common
import Orvelle.Settings

/// The content of the settings window: notices of what went wrong, and below them the settings, which scroll.
FocusScope {
    id: scrollView

    required property SettingsStore settings
    required property ThemeManager themeManager
    /// Null, or an object with a text `error`, a truth value `needsApproval` and a function `askForApproval`.
    required property var launchAtLogin
    readonly property color color: Look.window
    signal quitApp()

    focus: true

    // Whoever holds the window closes it then. A close from here would cut the content from a window that is not Qt's.
    Keys.onEscapePressed: Window.window.hide()
    Keys.onPressed: event => {
        event.accepted = event.key === Qt.Key_W && event.modifiers === Qt.ControlModifier;
        if (event.accepted)
            Window.window.hide();
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
        launchAtLogin: scrollView.launchAtLogin
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

    /// Reports a failure. Without a text it is hidden and has no height.
    component NoticeBanner: Rectangle {
        id: banner

        required property string text

        visible: text !== ""
        implicitHeight: text !== "" ? label.implicitHeight + 16 : 0
        color: Look.withOpacity(Look.red, 0.25)
        Accessible.role: Accessible.AlertMessage
        Accessible.name: text

        PlainText {
            id: label
            // It sets no height, because the implicit height of an elided text depends on it.
            x: 16
            y: 8
            width: banner.width - 2 * x
            text: banner.text
            weight: Font.Medium
            wrapMode: Text.Wrap
            maximumLineCount: 4
            Accessible.ignored: true
        }
    }
}
