#include "shell/x11/x11_connection.h"

#include <QGuiApplication>

#include <algorithm>

namespace orvelle {

xcb_connection_t* xcbConnection() {
    const auto* application = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    return application == nullptr ? nullptr : application->connection();
}

int screenNumber(xcb_connection_t* connection) {
    char* host = nullptr;
    int display = 0;
    int screen = 0;
    if (xcb_parse_display(nullptr, &host, &display, &screen) != 0)
        std::free(host);
    return std::clamp(screen, 0, std::max(xcb_setup_roots_length(xcb_get_setup(connection)) - 1, 0));
}

xcb_window_t rootWindow(xcb_connection_t* connection) {
    xcb_screen_iterator_t screens = xcb_setup_roots_iterator(xcb_get_setup(connection));
    for (int before = screenNumber(connection); before > 0; --before)
        xcb_screen_next(&screens);
    return screens.data->root;
}

xcb_atom_t internAtom(xcb_connection_t* connection, std::string_view name) {
    const auto reply = takeReply(xcb_intern_atom_reply(
        connection, xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data()),
        nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

xcb_window_t selectionOwner(xcb_connection_t* connection, xcb_atom_t selection) {
    const auto reply = takeReply(
        xcb_get_selection_owner_reply(connection, xcb_get_selection_owner(connection, selection), nullptr));
    return reply ? reply->owner : xcb_window_t{XCB_WINDOW_NONE};
}

// The base class takes the filter out again when the object ends.
X11EventFilter::X11EventFilter() {
    qGuiApp->installNativeEventFilter(this);
}

bool X11EventFilter::nativeEventFilter(const QByteArray& eventType, void* message, qintptr* /*result*/) {
    if (eventType == "xcb_generic_event_t")
        handleEvent(*static_cast<const xcb_generic_event_t*>(message));
    return false; // Qt handles it too
}

std::uint8_t eventKind(const xcb_generic_event_t& event) {
    constexpr std::uint8_t sentByProgram = 0x80;
    return static_cast<std::uint8_t>(event.response_type & ~sentByProgram);
}

} // namespace orvelle
