#include "shell/wayland/layer_popup.h"

#include <QWindow>

#include <utility>

namespace orvelle {

LayerPopup::LayerPopup(LayerShell& shell, QWindow& window, int ownBarHeight, LayerKeyboard keyboard,
                       MakeOutsidePresses makeOutsidePresses)
    : m_role(shell, window, ownBarHeight, keyboard)
    , m_events(window)
    , m_makeOutsidePresses(std::move(makeOutsidePresses)) {
    connect(&m_role, &LayerRole::closed, this, &LayerPopup::close);
    connect(&m_events, &PopupEvents::painted, this, &Popup::painted);
    connect(&m_events, &PopupEvents::escapePressed, this, &LayerPopup::dismiss);
    connect(&m_events, &PopupEvents::pressedOutside, this, &LayerPopup::close);
    connect(&m_events, &PopupEvents::keyboardLost, this, [this] {
        if (!m_role.keepsKeyboard())
            close();
    });
    connect(&m_events, &PopupEvents::hidden, this, &LayerPopup::close);
    connect(&m_events, &PopupEvents::screensChanged, this, &LayerPopup::close);
}

void LayerPopup::show(QScreen& screen, const QRect& geometry, const QRectF& spared) {
    m_presses = m_makeOutsidePresses(spared);
    connect(m_presses.get(), &OutsidePresses::pressed, this, &LayerPopup::close);
    m_events.begin(screen);
    if (!m_role.show(screen, geometry))
        close();
}

void LayerPopup::dismiss() {
    Q_EMIT dismissed();
    close();
}

void LayerPopup::close() {
    if (!isShown())
        return;
    m_presses.release()->deleteLater(); // it may be the caller
    m_role.hide();
    Q_EMIT closed();
}

} // namespace orvelle
