#include "shell/painted/popup_events.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScreen>
#include <QWindow>

#include <utility>

namespace orvelle {
namespace {

bool isEscape(const QEvent& event) {
    return event.type() == QEvent::KeyPress && static_cast<const QKeyEvent&>(event).key() == Qt::Key_Escape;
}

bool isPressOutside(const QEvent& event, const QSize& window) {
    return event.type() == QEvent::MouseButtonPress &&
           !QRectF(QPointF(0, 0), window).contains(static_cast<const QMouseEvent&>(event).position());
}

} // namespace

PopupEvents::PopupEvents(QWindow& window)
    : m_window(window) {
    m_window.installEventFilter(this);
    connect(&m_window, &QWindow::activeChanged, this, [this] {
        if (m_window.isActive())
            m_wasActive = true;
        else if (m_wasActive)
            Q_EMIT keyboardLost();
    });
    connect(&m_window, &QWindow::visibleChanged, this, [this](bool visible) {
        if (!visible)
            Q_EMIT hidden();
    });
    connect(qGuiApp, &QGuiApplication::primaryScreenChanged, this, &PopupEvents::screensChanged);
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, &PopupEvents::screensChanged);
}

void PopupEvents::begin(QScreen& screen) {
    m_wasActive = false;
    m_isPainted = m_window.isExposed();
    connect(&screen, &QScreen::geometryChanged, this, &PopupEvents::screensChanged, Qt::UniqueConnection);
}

bool PopupEvents::eventFilter(QObject* watched, QEvent* event) {
    // The window paints when it handles the event, which is after this filter.
    if (event->type() == QEvent::Expose && m_window.isExposed() && !std::exchange(m_isPainted, true))
        QMetaObject::invokeMethod(this, &PopupEvents::painted, Qt::QueuedConnection);
    if (isEscape(*event)) {
        Q_EMIT escapePressed();
        return true;
    }
    if (isPressOutside(*event, m_window.size())) {
        Q_EMIT pressedOutside();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace orvelle
