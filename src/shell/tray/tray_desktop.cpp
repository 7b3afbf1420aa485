#include "shell/tray/tray_desktop.h"

#include "shell/tray/plain_popup.h"
#include "shell/tray/tray_status_bar.h"

#include <utility>

namespace orvelle {

std::unique_ptr<Popup> makePassivePopup(QWindow& window) {
    return std::make_unique<PlainPopup>(window, PopupKeyboard::leaves);
}

TrayDesktop::TrayDesktop(const SettingsStore& settings, std::unique_ptr<Desktop> other, TrayWindows windows)
    : m_settings(settings)
    , m_other(std::move(other))
    , m_windows(std::move(windows)) {}

std::unique_ptr<StatusBar> TrayDesktop::makeStatusBar() {
    return std::make_unique<TrayStatusBar>(m_settings, m_windows, TrayBus());
}

} // namespace orvelle
