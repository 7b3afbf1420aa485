#include "shell/desktop.h"
#include "shell/x11/settings_follower.h"
#include "shell/x11/x11_connection.h"
#include "shell/x11/xsettings.h"
#include "theme/fonts.h"

namespace orvelle {
namespace {

QString textOf(std::string_view settings, std::string_view name) {
    const std::string_view text = textSetting(settings, name).value_or(std::string_view());
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace

std::unique_ptr<QObject> followDesktopFonts() {
    xcb_connection_t* connection = xcbConnection();
    if (connection == nullptr)
        return nullptr;
    return std::make_unique<SettingsFollower>(connection, [](std::string_view settings) {
        setDesktopFontNames({.proportional = textOf(settings, "Gtk/FontName"),
                             .monospaced = textOf(settings, "Gtk/MonospaceFontName")});
    });
}

} // namespace orvelle
