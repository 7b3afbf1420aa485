#include "shell/tray/plain_popup.h"

#include <QGuiApplication>
#include <QKeyEvent>

#include <utility>

namespace orvelle {

PlainPopup::PlainPopup(QWindow& window, PopupKeyboard keyboard)
    : m_window(window)
    , m_takesKeyboard(keyboard == PopupKeyboard::takes) {
    m_window.setFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    m_window.setFlag(Qt::WindowDoesNotAcceptFocus, !m_takesKeyboard);
    m_window.installEventFilter(this);
    connect(&m_window, &QWindow::activeChanged, this, &PlainPopup::activeChanged);
    connect(&m_window, &QWindow::visibleChanged, this, [this](bool visible) {
        if (!visible)
            close();
    });
    connect(qGuiApp, &QGuiApplication::primaryScreenChanged, this, &PlainPopup::close);
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, &PlainPopup::close);
}

void PlainPopup::show(QScreen& screen, const QRect& geometry, const QRectF& /*spared*/) {
    m_isShown = true;
    m_wasActive = false;
    m_isPainted = m_window.isExposed();
    m_window.setScreen(&screen);
    m_window.setGeometry(geometry);
    if (!m_window.requestedFormat().hasAlpha())
        m_window.setMask(roundedRegion(geometry.size(), popupCornerRadiusPoints));
    m_window.show();
    if (m_takesKeyboard)
        m_window.requestActivate();
}

void PlainPopup::close() {
    if (!std::exchange(m_isShown, false))
        return;
    m_window.hide();
    Q_EMIT closed();
}

void PlainPopup::activeChanged() {
    if (m_window.isActive())
        m_wasActive = true;
    else if (m_wasActive && m_takesKeyboard)
        close();
}

bool PlainPopup::eventFilter(QObject* watched, QEvent* event) {
    // The window paints when it handles the event, which is after this filter.
    if (event->type() == QEvent::Expose && m_window.isExposed() && !std::exchange(m_isPainted, true))
        QMetaObject::invokeMethod(this, &PlainPopup::painted, Qt::QueuedConnection);
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        Q_EMIT dismissed();
        close();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace orvelle
