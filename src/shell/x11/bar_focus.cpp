#include "shell/x11/bar_focus.h"

namespace orvelle {

BarFocus::BarFocus(BarWindow& window)
    : m_window(window)
    , m_keyboard(window.bar()) {
    m_window.installEventFilter(this);
}

void BarFocus::take() {
    if (!canTake())
        return;
    m_keyboard.forgetClick();
    m_isTaken = true;
    m_focus.take(m_window.winId());
    showFocus();
}

void BarFocus::resume() {
    if (!m_keyboard.takeClick() || !canTake())
        return;
    m_isTaken = true;
    m_focus.takeOver(m_window.winId());
    showFocus();
}

void BarFocus::showFocus() {
    if (m_window.isActive()) // Qt reports nothing when the keyboard was away for a moment only
        m_keyboard.showFocus();
}

bool BarFocus::canTake() const {
    return m_window.isExposed() && !m_window.bar().isEmpty();
}

bool BarFocus::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::FocusIn:
        // Some window managers give the keyboard to a window that is clicked; then no item shows it.
        if (m_isTaken && !m_window.bar().isEmpty())
            m_keyboard.showFocus();
        break;
    case QEvent::FocusOut:
        // Qt reports it a tenth of a second late: the keyboard may have come back since.
        if (!m_isTaken || !InputFocus::isIn(m_window.winId()))
            forget();
        break;
    case QEvent::MouseButtonPress:
        m_keyboard.forgetClick();
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
    m_focus.giveBack();
    return true;
}

void BarFocus::forget() {
    m_isTaken = false;
    m_keyboard.hideFocus();
}

} // namespace orvelle
