#pragma once

#include <QObject>

class QScreen;
class QWindow;

namespace orvelle {

/// What happens to the window of a popup that may close it, told alike on every desktop. Main thread only.
class PopupEvents final : public QObject {
    Q_OBJECT

public:
    /// The window must outlive the object.
    explicit PopupEvents(QWindow& window);

    /// The window is about to open on this screen.
    void begin(QScreen& screen);

Q_SIGNALS:
    /// The first picture since the window opened is on the screen.
    void painted();
    /// The window does not see this press of Escape.
    void escapePressed();
    /// A mouse button was pressed outside of the window, whose grab reports it. The window does not see it.
    void pressedOutside();
    /// The keyboard was in the window since it opened, and has left.
    void keyboardLost();
    void hidden();
    /// The window's screen, or which screens there are, has changed.
    void screensChanged();

private:
    bool eventFilter(QObject* watched, QEvent* event) override;

    QWindow& m_window;
    bool m_wasActive = false;
    bool m_isPainted = false;
};

} // namespace orvelle
