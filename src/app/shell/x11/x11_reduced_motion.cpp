#include "app/shell/desktop.h"
#include "app/shell/x11/settings_follower.h"
#include "app/shell/x11/x11_connection.h"
#include "app/shell/x11/xsettings.h"
#include "charts/motion.h"

namespace orvelle {

std::unique_ptr<QObject> followReducedMotion(Motion& motion) {
    xcb_connection_t* connection = xcbConnection();
    if (connection == nullptr)
        return nullptr;
    return std::make_unique<SettingsFollower>(connection, [&motion](std::string_view settings) {
        motion.setReduced(integerSetting(settings, "Gtk/EnableAnimations") == 0);
    });
}

} // namespace orvelle
