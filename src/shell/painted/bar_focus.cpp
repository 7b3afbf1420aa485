#include "shell/painted/bar_focus.h"

#include <QGuiApplication>
#include <QWindow>

namespace orvelle {

BarFocus::BarFocus(AccessibleBar& window)
    : m_window(window)
    , m_keyboard(window.bar()) {
    m_window.installEventFilter(this);
    connect(&m_window.bar(), &Bar::pressed, this, [this] { m_keyboard.forgetClick(); });
}

void BarFocus::take() {
    if (m_window.bar().isEmpty() || !canTake())
        return;
    m_keyboard.forgetClick();
    m_isTaken = true;
    takeKeyboard();
    showFocus();
}

void BarFocus::choose(const StatusItem& item) {
    // From one panel to the next the window that had the keyboard before both stays the same.
    const QWindow* focused = QGuiApplication::focusWindow();
    const bool isInPopup = focused != nullptr && focused->type() == Qt::Tool;
    if (!m_keyboard.hasClicked() || !isInPopup)
        rememberKeyboard();
    m_keyboard.choose(item);
}

void BarFocus::resume() {
    if (!m_keyboard.takeClick() || m_window.bar().isEmpty() || !canTake())
        return;
    m_isTaken = true;
    takeKeyboardOver();
    showFocus();
}

void BarFocus::showFocus() {
    if (m_window.isActive()) // Qt reports nothing when the keyboard was away for a moment only
        m_keyboard.showFocus();
}

bool BarFocus::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::FocusIn:
        // Some window managers give the keyboard to a window that is clicked; then no item shows it.
        if (m_isTaken && !m_window.bar().isEmpty())
            m_keyboard.showFocus();
        break;
    case QEvent::FocusOut:
        // Qt may report it late: the keyboard may have come back since.
        if (!m_isTaken || !hasKeyboard()) {
            forget();
            keyboardLost();
        }
        break;
    case QEvent::KeyPress:
        return handleKey(*static_cast<QKeyEvent*>(event));
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

bool BarFocus::handleKey(const QKeyEvent& event) {
    if (!m_isTaken || m_window.bar().isEmpty())
        return false;
    if (m_keyboard.handleKey(event))
        return true;
    if (event.key() != Qt::Key_Escape)
        return false;
    forget();
    giveKeyboardBack();
    return true;
}

void BarFocus::forget() {
    m_isTaken = false;
    m_keyboard.hideFocus();
}

} // namespace orvelle
