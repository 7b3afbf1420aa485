#include "shell/tray/plain_popup.h"

#include <utility>

namespace orvelle {

PlainPopup::PlainPopup(QWindow& window, PopupKeyboard keyboard)
    : m_window(window)
    , m_takesKeyboard(keyboard == PopupKeyboard::takes) {
    m_window.setFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint);
    m_window.setFlag(Qt::WindowDoesNotAcceptFocus, !m_takesKeyboard);
    connect(&m_events, &PopupEvents::painted, this, &Popup::painted);
    connect(&m_events, &PopupEvents::hidden, this, &PlainPopup::close);
    connect(&m_events, &PopupEvents::screensChanged, this, &PlainPopup::close);
    connect(&m_events, &PopupEvents::escapePressed, this, [this] {
        Q_EMIT dismissed();
        close();
    });
    if (m_takesKeyboard)
        connect(&m_events, &PopupEvents::keyboardLost, this, &PlainPopup::close);
}

void PlainPopup::show(QScreen& screen, const QRect& geometry, const QRectF& /*spared*/) {
    m_isShown = true;
    m_events.begin(screen);
    m_window.setScreen(&screen);
    // A tiling compositor lets a window float that has one size.
    m_window.setMinimumSize(geometry.size());
    m_window.setMaximumSize(geometry.size());
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

} // namespace orvelle
