#pragma once

#include "shell/painted/bar_keyboard.h"
#include "shell/painted/bar_window.h"
#include "shell/x11/x11_input.h"

namespace orvelle {

/// Gives the bar the keyboard. No window manager gives it to a dock, so the bar takes it on request, and
/// hands it back with Escape. Main thread only.
class BarFocus : public QObject {
    Q_OBJECT

public:
    explicit BarFocus(BarWindow& window);

    /// Moves the keyboard to the item where it was last, or else to the first one. Nothing happens while no
    /// item is on the screen.
    void take();
    /// To be called when Escape is about to close what an item opened: the keyboard returns to the item if a
    /// key opened it.
    void resume();

private:
    bool eventFilter(QObject* watched, QEvent* event) override;
    [[nodiscard]] bool handleKey(const QKeyEvent& event);
    void showFocus();
    void forget();
    [[nodiscard]] bool canTake() const;

    BarWindow& m_window;
    BarKeyboard m_keyboard;
    InputFocus m_focus;
    bool m_isTaken = false; ///< taken, and not lost since
};

} // namespace orvelle
