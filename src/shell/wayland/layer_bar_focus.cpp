#include "shell/wayland/layer_bar_focus.h"

#include <QPainter>

#include <utility>

namespace orvelle {
namespace {

constexpr QSize onePoint(1, 1);

} // namespace

LayerBarFocus::LayerBarFocus(LayerShell& shell, AccessibleBar& window, MakeOutsidePresses makeOutsidePresses)
    : BarFocus(window)
    , m_role(shell, window, barHeightPoints, LayerKeyboard::takes)
    , m_picture(&window)
    , m_makeOutsidePresses(std::move(makeOutsidePresses)) {
    QSurfaceFormat translucent = window.requestedFormat();
    translucent.setAlphaBufferSize(8);
    window.setFormat(translucent);
    connect(&m_role, &LayerRole::closed, this, &LayerBarFocus::giveKeyboardBack);
    connect(&window.bar(), &Bar::moved, this, &LayerBarFocus::giveKeyboardBack);
}

void LayerBarFocus::takeKeyboard() {
    if (m_presses != nullptr)
        return; // it is there, or on its way
    const BarPlace place = window().bar().place();
    m_presses = m_makeOutsidePresses(place.geometry);
    connect(m_presses.get(), &OutsidePresses::pressed, this, &LayerBarFocus::giveKeyboardBack);
    if (m_role.show(*place.screen, {place.geometry.topLeft(), onePoint}))
        paint(); // at once, before a window that has the keyboard now closes and another program gets it
    else
        giveKeyboardBack();
}

void LayerBarFocus::giveKeyboardBack() {
    if (m_presses == nullptr)
        return;
    m_presses.release()->deleteLater(); // it may be the caller
    m_role.hide();
}

bool LayerBarFocus::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Expose && window().isExposed())
        paint();
    if (event->type() == QEvent::FocusOut && m_role.keepsKeyboard())
        return false;
    return BarFocus::eventFilter(watched, event);
}

/// Compositors give the keyboard only to a window with a picture.
void LayerBarFocus::paint() {
    const QRect everything({0, 0}, onePoint);
    m_picture.resize(onePoint);
    m_picture.beginPaint(everything);
    QPainter painter(m_picture.paintDevice());
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(everything, Qt::transparent);
    painter.end();
    m_picture.endPaint();
    m_picture.flush(everything);
}

} // namespace orvelle
