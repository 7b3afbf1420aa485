#include "shell/x11/popup_window.h"

#include "shell/x11/ewmh_hints.h"

#include <QCursor>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>
#include <QWindow>

#include <utility>

namespace orvelle {
namespace {

bool desktopComposesWindows() {
    const EwmhHints* hints = EwmhHints::shared();
    return hints != nullptr && hints->isComposing();
}

} // namespace

PopupWindow::PopupWindow(QWindow& window)
    : m_window(window)
    , m_fade(window, [this](double opacity) { setOpacity(opacity); }) {
    // Not Qt::Popup, whose grab would keep the closing click from what was clicked.
    m_window.setFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    m_window.installEventFilter(this);
    connect(&m_window, &QWindow::activeChanged, this, &PopupWindow::activeChanged);
    connect(&m_window, &QWindow::visibleChanged, this, [this](bool visible) {
        if (!visible)
            close();
    });
    connect(qGuiApp, &QGuiApplication::primaryScreenChanged, this, &PopupWindow::close);
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, &PopupWindow::close);
}

void PopupWindow::setOpacity(double opacity) {
    m_window.setOpacity(opacity);
    // Qt leaves the request with others that have not been sent yet. The last one of a fade would wait until
    // the program has something else to say.
    if (xcb_connection_t* connection = xcbConnection())
        xcb_flush(connection);
}

bool PopupWindow::paintsItsCorners() const {
    return m_window.requestedFormat().hasAlpha() && desktopComposesWindows();
}

void PopupWindow::show(QScreen& screen, const QRect& geometry, const QRectF& spared) {
    m_spared = spared;
    m_isPainted = m_window.isExposed();
    m_window.setScreen(&screen);
    connect(&screen, &QScreen::geometryChanged, this, &PopupWindow::close, Qt::UniqueConnection);
    // Sizes are offered to the window manager in steps that count from the base size; at a scale of 1.5 a
    // step is 2 pixels.
    m_window.setBaseSize(geometry.size());
    m_window.setGeometry(geometry);
    m_window.setMask(paintsItsCorners() ? QRegion()
                                        : roundedRegion(geometry.size(), popupCornerRadiusPoints));
    m_wasActive = false;
    m_presses = std::make_unique<PointerPresses>();
    connect(m_presses.get(), &PointerPresses::pressed, this, &PopupWindow::pressed);
    m_cover = DesktopCover::makeIfNeeded();
    m_fade.show(desktopComposesWindows());
    m_window.requestActivate();
}

void PopupWindow::close() {
    if (!isShown())
        return;
    m_presses.release()->deleteLater(); // it may be the caller
    m_cover.reset();
    m_fade.hide(m_window.isVisible() && desktopComposesWindows());
    Q_EMIT closed();
}

void PopupWindow::pressed() {
    const QPoint position = QCursor::pos();
    if (!m_window.geometry().contains(position) && !m_spared.contains(position))
        close();
}

void PopupWindow::activeChanged() {
    // Qt reports a lost keyboard late: it may have come back since, for example when a window manager first
    // gave it to a window that was about to close.
    if (m_window.isActive())
        m_wasActive = true;
    else if (m_wasActive && !InputFocus::isIn(m_window.winId()))
        close();
}

bool PopupWindow::eventFilter(QObject* watched, QEvent* event) {
    // The window paints when it handles the event, which is after this filter.
    if (event->type() == QEvent::Expose && m_window.isExposed() && !std::exchange(m_isPainted, true))
        QMetaObject::invokeMethod(this, &PopupWindow::painted, Qt::QueuedConnection);
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape) {
        Q_EMIT dismissed();
        close();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace orvelle
