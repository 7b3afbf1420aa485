#include "app/shell/x11/x11_connection.h"

#include <QGuiApplication>

namespace orvelle {

xcb_connection_t* xcbConnection() {
    const auto* application = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return application == nullptr ? nullptr : application->connection();
}

xcb_atom_t internAtom(xcb_connection_t* connection, std::string_view name) {
    const auto reply = takeReply(xcb_intern_atom_reply(
        connection, xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data()),
        nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

} // namespace orvelle
