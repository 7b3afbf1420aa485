#pragma once

#include "shell/painted/bar.h"

#include <QKeyEvent>

#include <optional>
#include <utility>

namespace orvelle {

/// The item to which a key moves the keyboard, out of `count` items, from the one at `current`: a neighbour,
/// round the ends, or an end. Nothing for other keys.
[[nodiscard]] std::optional<std::size_t> itemAfterKey(int key, std::size_t current, std::size_t count);

/// The click that a key stands for: Enter, the space bar and the arrow down open a panel, the menu key and
/// Shift+F10 the menu. Nothing for other keys.
[[nodiscard]] std::optional<ClickButton> clickOfKey(const QKeyEvent& event);

/// Lets keys choose and click the items of a bar. The desktop decides how the bar gets the keyboard. Main
/// thread only.
class BarKeyboard {
public:
    explicit BarKeyboard(Bar& bar)
        : m_bar(bar) {}

    /// Marks the item where the keyboard was last, or else the first one. The bar must have items.
    void showFocus();
    void hideFocus() { m_bar.setFocusedItem({}); }

    /// Takes this item for one that a key has just clicked.
    void choose(const StatusItem& item);

    /// Moves to an item or clicks it, which may remove items. Returns whether the key was used.
    [[nodiscard]] bool handleKey(const QKeyEvent& event);

    /// Whether a key has clicked an item since the last call of this function or of `forgetClick()`.
    [[nodiscard]] bool takeClick() { return std::exchange(m_hasClicked, false); }
    [[nodiscard]] bool hasClicked() const { return m_hasClicked; }
    void forgetClick() { m_hasClicked = false; }

private:
    void moveTo(std::size_t index);
    [[nodiscard]] std::size_t currentIndex() const;

    Bar& m_bar;
    QString m_current; ///< identifier of the item that the keyboard is at, or was last
    bool m_hasClicked = false;
};

} // namespace orvelle
