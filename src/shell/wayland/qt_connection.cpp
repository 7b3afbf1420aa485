#include "shell/wayland/qt_connection.h"

#include <QGuiApplication>
#include <QWindow>
#include <qpa/qplatformnativeinterface.h>

namespace orvelle {
namespace {

/// The same way in every Qt since 6.4; a public one is newer.
QPlatformNativeInterface* nativeInterface() {
    return QGuiApplication::platformName().startsWith(QStringLiteral("wayland"))
               ? QGuiApplication::platformNativeInterface()
               : nullptr;
}

} // namespace

wl_display* qtDisplay() {
    QPlatformNativeInterface* native = nativeInterface();
    return native == nullptr ? nullptr
                             : static_cast<wl_display*>(native->nativeResourceForIntegration("wl_display"));
}

wl_surface* qtSurface(QWindow& window) {
    QPlatformNativeInterface* native = nativeInterface();
    return native == nullptr || window.handle() == nullptr
               ? nullptr
               : static_cast<wl_surface*>(native->nativeResourceForWindow("surface", &window));
}

wl_output* qtOutput(QScreen& screen) {
    QPlatformNativeInterface* native = nativeInterface();
    return native == nullptr ? nullptr
                             : static_cast<wl_output*>(native->nativeResourceForScreen("output", &screen));
}

} // namespace orvelle
