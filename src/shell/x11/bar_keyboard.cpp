#include "shell/x11/bar_keyboard.h"

#include <QKeyEvent>

#include <algorithm>
#include <utility>

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

BarKeyboard::BarKeyboard(BarWindow& bar)
    : m_bar(bar) {
    m_bar.installEventFilter(this);
}

void BarKeyboard::take() {
    if (!canTake())
        return;
    m_hasClicked = false;
    m_isTaken = true;
    m_focus.take(m_bar.winId());
    if (m_bar.isActive()) // Qt tells nothing of a keyboard that was away for a moment only
        showFocus();
}

void BarKeyboard::resume() {
    if (!std::exchange(m_hasClicked, false) || !canTake())
        return;
    m_isTaken = true;
    m_focus.takeOver(m_bar.winId());
    if (m_bar.isActive())
        showFocus();
}

void BarKeyboard::showFocus() {
    m_current = m_bar.items()[currentIndex()]->identifier();
    m_bar.setFocusedItem(m_current);
}

bool BarKeyboard::canTake() const {
    return m_bar.isExposed() && !m_bar.isEmpty();
}

std::size_t BarKeyboard::currentIndex() const {
    const auto& items = m_bar.items();
    const auto found =
        std::ranges::find_if(items, [this](const auto& item) { return item->identifier() == m_current; });
    return found == items.end() ? 0 : static_cast<std::size_t>(found - items.begin());
}

bool BarKeyboard::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::FocusIn:
        // Some window managers hand the keyboard to whatever is clicked; then no item shows it.
        if (m_isTaken && !m_bar.isEmpty())
            showFocus();
        break;
    case QEvent::FocusOut:
        // Qt tells it a tenth of a second late: the keyboard may have come back since.
        if (!m_isTaken || !InputFocus::isIn(m_bar.winId()))
            forget();
        break;
    case QEvent::MouseButtonPress:
        m_hasClicked = false;
        break;
    case QEvent::KeyPress:
        return handleKey(*static_cast<QKeyEvent*>(event));
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

bool BarKeyboard::handleKey(const QKeyEvent& event) {
    if (!m_isTaken || m_bar.isEmpty())
        return false;
    const std::size_t current = currentIndex();
    if (const std::optional<std::size_t> next = itemAfterKey(event.key(), current, m_bar.items().size())) {
        m_current = m_bar.items()[*next]->identifier();
        m_bar.setFocusedItem(m_current);
        return true;
    }
    if (const std::optional<ClickButton> button = clickOfKey(event)) {
        click(*button);
        return true;
    }
    if (event.key() != Qt::Key_Escape)
        return false;
    giveBack();
    return true;
}

void BarKeyboard::click(ClickButton button) {
    m_hasClicked = true;
    m_bar.items()[currentIndex()]->click(button);
}

void BarKeyboard::forget() {
    m_isTaken = false;
    m_bar.setFocusedItem({});
}

void BarKeyboard::giveBack() {
    forget();
    m_focus.giveBack();
}

} // namespace orvelle
