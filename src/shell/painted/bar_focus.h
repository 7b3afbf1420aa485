#pragma once

#include "shell/painted/accessible_bar.h"
#include "shell/painted/bar_keyboard.h"

namespace orvelle {

/// Gives the bar the keyboard. No desktop gives it to a bar, so the bar takes it on request, and hands it
/// back with Escape. How the keyboard moves is the desktop's. Main thread only.
class BarFocus : public QObject {
    Q_OBJECT

public:
    /// Moves the keyboard to the item where it was last, or else to the first one. Nothing happens while no
    /// item is on the screen.
    void take();
    /// To be called when something is about to open under this item without a click: the keyboard moves as if
    /// a key had opened it.
    void choose(const StatusItem& item);
    /// To be called when Escape is about to close what an item opened: the keyboard returns to the item if a
    /// key opened it.
    void resume();

protected:
    /// The window receives the keys; it must outlive the object.
    explicit BarFocus(AccessibleBar& window);
    bool eventFilter(QObject* watched, QEvent* event) override;

    [[nodiscard]] AccessibleBar& window() const { return m_window; }

private:
    /// Whether the items are on the screen.
    [[nodiscard]] virtual bool canTake() const = 0;
    /// Remembers who has the keyboard now: `giveKeyboardBack()` moves it there.
    virtual void rememberKeyboard() {}
    /// Moves the keyboard to the window, from another program.
    virtual void takeKeyboard() = 0;
    /// Moves the keyboard to the window, from another window of this program.
    virtual void takeKeyboardOver() = 0;
    /// Moves the keyboard to the window that had it before it was taken.
    virtual void giveKeyboardBack() = 0;
    /// Whether the window has the keyboard now, which its own events may report later.
    [[nodiscard]] virtual bool hasKeyboard() const = 0;
    /// The keyboard has left the window by itself.
    virtual void keyboardLost() {}

    [[nodiscard]] bool handleKey(const QKeyEvent& event);
    void showFocus();
    void forget();

    AccessibleBar& m_window;
    BarKeyboard m_keyboard;
    bool m_isTaken = false; ///< taken, and not lost since
};

} // namespace orvelle
