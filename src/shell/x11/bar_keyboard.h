#pragma once

#include "shell/painted/bar_window.h"
#include "shell/x11/x11_input.h"

#include <optional>

namespace orvelle {

/// Where a key moves the keyboard to among `count` items, of which it is at `current`: to a neighbour, round
/// the ends, or to an end. Nothing for other keys.
[[nodiscard]] std::optional<std::size_t> itemAfterKey(int key, std::size_t current, std::size_t count);

/// The click that a key stands for: Enter, the space bar and the arrow down open a panel, the menu key and
/// Shift+F10 the menu. Nothing for other keys.
[[nodiscard]] std::optional<ClickButton> clickOfKey(const QKeyEvent& event);

/// Lets keys do with the items of the bar what the mouse does. A dock gets the keyboard from no window
/// manager, so the bar takes it when it is told to, and hands it back with Escape. Main thread only.
class BarKeyboard : public QObject {
    Q_OBJECT

public:
    explicit BarKeyboard(BarWindow& bar);

    /// Moves the keyboard to the item where it was last, or else to the first one. Nothing happens while no
    /// item is on the screen.
    void take();
    /// To be called when Escape is about to close what an item opened, as long as that has the keyboard: it
    /// returns to the item if it was a key that opened it.
    void resume();

private:
    bool eventFilter(QObject* watched, QEvent* event) override;
    [[nodiscard]] bool handleKey(const QKeyEvent& event);
    void click(ClickButton button);
    /// Shows which item has the keyboard.
    void showFocus();
    void forget();
    void giveBack();
    [[nodiscard]] bool canTake() const;
    [[nodiscard]] std::size_t currentIndex() const;

    BarWindow& m_bar;
    InputFocus m_focus;
    QString m_current;         ///< identifier of the item that the keyboard is at, or was last
    bool m_isTaken = false;    ///< asked for, and not lost again
    bool m_hasClicked = false; ///< what is open was opened by a key
};

} // namespace orvelle
