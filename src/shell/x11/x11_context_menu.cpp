#include "shell/x11/x11_context_menu.h"

#include "shell/painted/popup_geometry.h"

#include <QScreen>

namespace orvelle {

X11ContextMenu::X11ContextMenu(const BarWindow& bar, std::function<void()> dismissed)
    : m_bar(bar) {
    QObject::connect(&m_popup, &PopupWindow::dismissed, &m_popup, std::move(dismissed));
    QObject::connect(&m_bar, &QWindow::yChanged, &m_popup,
                     &PopupWindow::close); // another dock has come or gone
    QObject::connect(&m_popup, &PopupWindow::closed, &m_popup, [this] { m_item = nullptr; });
    QObject::connect(&m_window, &MenuWindow::chosen, &m_popup, [this](std::size_t index) { choose(index); });
}

void X11ContextMenu::show(const StatusItem& item, std::vector<MenuEntry> entries) {
    const bool wasShownThere = m_item == &item;
    close();
    if (wasShownThere)
        return;
    m_item = &item;
    m_window.setEntries(std::move(entries));
    QScreen& screen = *m_bar.screen();
    const QRectF bounds = m_bar.desktopBounds(item);
    m_popup.show(screen, menuGeometry(bounds, m_window.wantedSize(), screen.geometry()), bounds);
}

void X11ContextMenu::choose(std::size_t index) {
    // A copy, because the action may end the menu.
    const std::function<void()> action = m_window.entries().at(index).action;
    close();
    if (action)
        action();
}

} // namespace orvelle
