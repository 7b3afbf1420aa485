#pragma once

#include "shell/painted/window_fade.h"

#include <QObject>
#include <QRectF>

#include <memory>

class QScreen;
class QWindow;

namespace orvelle {

class PointerPresses;

/// Makes a popup of a window: it opens over the others with the keyboard in it and closes with Escape, when
/// another window gets the keyboard, when a mouse button goes down outside of it, which takes nothing from
/// what was clicked, and when the screens change, because it may stand beside them then. Its corners are
/// rounded, and where the desktop composes its windows it appears and disappears softly. Main thread only.
class PopupWindow : public QObject {
    Q_OBJECT

public:
    /// The window must outlive the object and must not have been shown. Where it is partly transparent and
    /// the desktop composes its windows it paints its corners itself; else they are cut off.
    explicit PopupWindow(QWindow& window);
    ~PopupWindow() override;

    /// Both rectangles are in points of the desktop. A press in `spared` does not close the window.
    void show(QScreen& screen, const QRect& geometry, const QRectF& spared = {});
    void close();
    [[nodiscard]] bool isShown() const { return m_presses != nullptr; }

Q_SIGNALS:
    void closed();
    /// Escape is about to close the window, which still has the keyboard. Whoever wants that next takes it
    /// now, because afterwards the window manager moves it.
    void dismissed();
    /// The first picture since the window opened is on the screen.
    void painted();

private:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void pressed();
    void activeChanged();
    [[nodiscard]] bool paintsItsCorners() const;

    QWindow& m_window;
    WindowFade m_fade;
    QRectF m_spared;
    bool m_wasActive = false;
    bool m_isPainted = false;
    std::unique_ptr<PointerPresses> m_presses; ///< exists while the window is shown
};

} // namespace orvelle
