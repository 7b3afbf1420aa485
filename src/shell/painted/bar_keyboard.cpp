#include "shell/painted/bar_keyboard.h"

#include <algorithm>

namespace orvelle {

std::optional<std::size_t> itemAfterKey(int key, std::size_t current, std::size_t count) {
    switch (key) {
    case Qt::Key_Left:
    case Qt::Key_Backtab:
        return (current + count - 1) % count;
    case Qt::Key_Right:
    case Qt::Key_Tab:
        return (current + 1) % count;
    case Qt::Key_Home:
        return 0;
    case Qt::Key_End:
        return count - 1;
    default:
        return std::nullopt;
    }
}

std::optional<ClickButton> clickOfKey(const QKeyEvent& event) {
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
    case Qt::Key_Down:
        return ClickButton::left;
    case Qt::Key_Menu:
        return ClickButton::right;
    case Qt::Key_F10:
        if (event.modifiers() == Qt::ShiftModifier)
            return ClickButton::right;
        break;
    default:
        break;
    }
    return std::nullopt;
}

void BarKeyboard::showFocus() {
    moveTo(currentIndex());
}

void BarKeyboard::choose(const StatusItem& item) {
    m_current = item.identifier();
    m_hasClicked = true;
}

void BarKeyboard::moveTo(std::size_t index) {
    m_current = m_bar.items()[index]->identifier();
    m_bar.setFocusedItem(m_current);
}

std::size_t BarKeyboard::currentIndex() const {
    const auto& items = m_bar.items();
    const auto found =
        std::ranges::find_if(items, [this](const auto& item) { return item->identifier() == m_current; });
    return found == items.end() ? 0 : static_cast<std::size_t>(found - items.begin());
}

bool BarKeyboard::handleKey(const QKeyEvent& event) {
    if (m_bar.isEmpty())
        return false;
    const std::size_t current = currentIndex();
    if (const std::optional<std::size_t> next = itemAfterKey(event.key(), current, m_bar.items().size())) {
        moveTo(*next);
        return true;
    }
    if (const std::optional<ClickButton> button = clickOfKey(event)) {
        m_hasClicked = true;
        m_bar.items()[current]->click(*button);
        return true;
    }
    return false;
}

} // namespace orvelle
