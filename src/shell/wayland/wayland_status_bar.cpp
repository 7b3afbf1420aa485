#include "shell/wayland/wayland_status_bar.h"

#include "shell/wayland/layer_popup.h"
#include "shell/wayland/strip_presses.h"

namespace orvelle {

WaylandStatusBar::WaylandStatusBar(LayerShell& shell, std::unique_ptr<WaylandConnection> connection)
    : m_shell(shell)
    , m_strip(std::move(connection))
    , m_makeOutsidePresses(
          [this](const QRectF& spared) { return std::make_unique<StripPresses>(m_strip, spared); })
    , m_focus(shell, m_strip.window(), m_makeOutsidePresses) {
    connect(&m_strip, &WaylandStrip::firstPainted, this, &StatusBar::firstPainted);
    connect(&m_strip, &WaylandStrip::lost, this, &WaylandStatusBar::lost);
}

std::unique_ptr<Popover> WaylandStatusBar::makePopover(PopoverContent makeContent) {
    return std::make_unique<BarPopover>(
        m_bar, m_keptPopovers, [this](QWindow& window) { return makePopup(window); }, std::move(makeContent),
        [this] { m_focus.resume(); });
}

std::unique_ptr<ContextMenu> WaylandStatusBar::makeContextMenu() {
    return std::make_unique<BarContextMenu>(
        m_bar, [this](QWindow& window) { return makePopup(window); }, [this] { m_focus.resume(); });
}

std::unique_ptr<Popup> WaylandStatusBar::makePopup(QWindow& window) {
    auto popup =
        std::make_unique<LayerPopup>(m_shell, window, height(), LayerKeyboard::takes, m_makeOutsidePresses);
    connect(popup.get(), &Popup::painted, &m_focus, &LayerBarFocus::yield);
    connect(this, &WaylandStatusBar::closePopups, popup.get(), &Popup::close);
    return popup;
}

std::unique_ptr<Popup> WaylandStatusBar::makePassivePopup(QWindow& window) {
    return std::make_unique<LayerPopup>(m_shell, window, height(), LayerKeyboard::leaves,
                                        [](const QRectF&) { return std::make_unique<OutsidePresses>(); });
}

} // namespace orvelle
