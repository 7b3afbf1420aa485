#include "shell/x11/popup_window.h"

#include "shell/x11/ewmh_hints.h"

#include <QCursor>
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
    , m_fade(window, [this](double opacity) { setOpacity(opacity); })
    , m_events(window) {
    // Not Qt::Popup, whose grab would keep the closing click from what was clicked.
    m_window.setFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    connect(&m_events, &PopupEvents::painted, this, &Popup::painted);
    connect(&m_events, &PopupEvents::escapePressed, this, &PopupWindow::dismiss);
    connect(&m_events, &PopupEvents::pressedOutside, this, &PopupWindow::close);
    connect(&m_events, &PopupEvents::hidden, this, &PopupWindow::close);
    connect(&m_events, &PopupEvents::screensChanged, this, &PopupWindow::close);
    connect(&m_events, &PopupEvents::keyboardLost, this, [this] {
        // Qt reports a lost keyboard late: it may have come back since, for example when a window manager
        // first gave it to a window that was about to close.
        if (!InputFocus::isIn(m_window.winId()))
            close();
    });
    connect(&m_window, &QWindow::xChanged, this, &PopupWindow::keepPlace);
    connect(&m_window, &QWindow::yChanged, this, &PopupWindow::keepPlace);
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
    m_place = geometry.topLeft();
    m_wasMoved = false;
    m_events.begin(screen);
    m_window.setScreen(&screen);
    // Sizes are offered to the window manager in steps that count from the base size; at a scale of 1.5 a
    // step is 2 pixels.
    m_window.setBaseSize(geometry.size());
    m_window.setGeometry(geometry);
    m_window.setMask(paintsItsCorners() ? QRegion()
                                        : roundedRegion(geometry.size(), popupCornerRadiusPoints));
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

void PopupWindow::keepPlace() {
    // i3 moves a window by the width of the frame that it then does not draw. A window manager that insists
    // has its way.
    if (!isShown() || !m_window.isExposed() || m_window.position() == m_place)
        return;
    if (!std::exchange(m_wasMoved, true))
        m_window.setPosition(m_place);
}

void PopupWindow::dismiss() {
    Q_EMIT dismissed();
    close();
}

} // namespace orvelle
