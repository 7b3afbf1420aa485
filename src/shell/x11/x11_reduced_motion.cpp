#include "animation/animation_clock.h"
#include "shell/desktop.h"
#include "shell/x11/settings_follower.h"
#include "shell/x11/x11_connection.h"
#include "shell/x11/xsettings.h"

namespace orvelle {

std::unique_ptr<QObject> followReducedMotion(AnimationClock& clock) {
    xcb_connection_t* connection = xcbConnection();
    if (connection == nullptr)
        return nullptr;
    return std::make_unique<SettingsFollower>(connection, [&clock](std::string_view settings) {
        clock.setReduced(integerSetting(settings, "Gtk/EnableAnimations") == 0);
    });
}

} // namespace orvelle
