#include "app/shell/x11/x11_connection.h"

#include <QGuiApplication>

namespace orvelle {

xcb_connection_t* xcbConnection() {
    const auto* application = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return application == nullptr ? nullptr : application->connection();
}

} // namespace orvelle
