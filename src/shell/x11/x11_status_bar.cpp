#include "shell/x11/x11_status_bar.h"

#include "shell/desktop.h"
#include "shell/x11/x11_context_menu.h"

namespace orvelle {

X11StatusBar::X11StatusBar()
    : m_placement(m_window)
    , m_keyboard(m_window) {
    connect(&m_window, &BarWindow::emptyChanged, this, [this] { m_placement.setShown(!m_window.isEmpty()); });
    connect(&m_window, &BarWindow::painted, this, &StatusBar::firstPainted, Qt::SingleShotConnection);
}

StatusItem& X11StatusBar::addItem(const QString& identifier, double length) {
    return m_window.addItem(identifier, length);
}

void X11StatusBar::removeItem(StatusItem& item) {
    m_window.removeItem(item);
}

std::unique_ptr<Popover> X11StatusBar::makePopover(PopoverContent makeContent) {
    return std::make_unique<X11Popover>(m_window, m_keptPopovers, std::move(makeContent),
                                        [this] { m_keyboard.resume(); });
}

std::unique_ptr<ContextMenu> X11StatusBar::makeContextMenu() {
    return std::make_unique<X11ContextMenu>(m_window, [this] { m_keyboard.resume(); });
}

std::unique_ptr<StatusBar> makeStatusBar() {
    return std::make_unique<X11StatusBar>();
}

std::optional<QString> prepareDesktop() {
    // Whoever names another platform knows what it needs; off-screen, for one, needs no display.
    const QByteArray platform = qgetenv("QT_QPA_PLATFORM");
    // A session may ask all its programs for Wayland; its XWayland serves the bar.
    const bool wantsX11 = platform.isEmpty() || platform.contains("xcb") || platform.startsWith("wayland");
    if (!wantsX11)
        return std::nullopt;
    // Only X11 lets a program place a bar; Wayland sessions offer it through XWayland.
    const QString display = qEnvironmentVariable("DISPLAY");
    if (display.isEmpty())
        return QStringLiteral("Orvelle needs an X display, and DISPLAY names none.");
    xcb_connection_t* connection = xcb_connect(nullptr, nullptr);
    const bool failed = xcb_connection_has_error(connection) != 0;
    xcb_disconnect(connection);
    if (failed)
        return QStringLiteral("Orvelle cannot reach the X display \"%1\".").arg(display);
    if (!platform.startsWith("xcb"))
        qputenv("QT_QPA_PLATFORM", "xcb");
    // With shared pictures Qt asks the server before each repaint whether it has read the last one, which
    // wakes two threads. Few pixels change here, so sending them is cheaper: one wake-up per sample instead
    // of three.
    if (!qEnvironmentVariableIsSet("QT_XCB_NO_MITSHM"))
        qputenv("QT_XCB_NO_MITSHM", "1");
    return std::nullopt;
}

} // namespace orvelle
