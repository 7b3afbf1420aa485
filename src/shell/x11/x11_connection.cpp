#include "shell/x11/x11_connection.h"

#include <QGuiApplication>

namespace orvelle {

xcb_connection_t* xcbConnection() {
    const auto* application = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return application == nullptr ? nullptr : application->connection();
}

int screenNumber() {
    char* host = nullptr;
    int display = 0;
    int screen = 0;
    if (xcb_parse_display(nullptr, &host, &display, &screen) != 0)
        std::free(host);
    return screen;
}

xcb_window_t rootWindow(xcb_connection_t* connection) {
    xcb_screen_iterator_t screens = xcb_setup_roots_iterator(xcb_get_setup(connection));
    for (int before = screenNumber(); before > 0 && screens.rem > 1; --before)
        xcb_screen_next(&screens);
    return screens.data->root;
}

xcb_atom_t internAtom(xcb_connection_t* connection, std::string_view name) {
    const auto reply = takeReply(xcb_intern_atom_reply(
        connection, xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data()),
        nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

} // namespace orvelle
