#include "shell/x11/present_desktop.h"

#include "shell/x11/x11_connection.h"

#include <optional>

namespace orvelle {
namespace {

constexpr std::uint32_t everyDesktop = 0xFFFFFFFF;

std::optional<std::uint32_t> cardinal(xcb_connection_t* connection, xcb_window_t window,
                                      xcb_atom_t property) {
    const auto reply = takeReply(xcb_get_property_reply(
        connection, xcb_get_property(connection, 0, window, property, XCB_ATOM_CARDINAL, 0, 1), nullptr));
    if (!reply || reply->format != 32 || reply->value_len < 1)
        return std::nullopt;
    return *static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
}

} // namespace

// Extended Window Manager Hints: _NET_CURRENT_DESKTOP and the client message _NET_WM_DESKTOP.
void moveToPresentDesktop(xcb_connection_t* connection, xcb_window_t window) {
    constexpr std::uint32_t fromTheUser = 2; // as a pager does; a program's own wish may be refused
    const auto geometry =
        takeReply(xcb_get_geometry_reply(connection, xcb_get_geometry(connection, window), nullptr));
    if (!geometry)
        return;
    const xcb_atom_t windowDesktop = internAtom(connection, "_NET_WM_DESKTOP");
    const auto present = cardinal(connection, geometry->root, internAtom(connection, "_NET_CURRENT_DESKTOP"));
    const auto own = cardinal(connection, window, windowDesktop);
    if (!present || !own || *own == *present || *own == everyDesktop)
        return;
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    message.type = windowDesktop;
    message.data.data32[0] = *present;
    message.data.data32[1] = fromTheUser;
    xcb_send_event(connection, 0, geometry->root,
                   XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
                   reinterpret_cast<const char*>(&message));
    xcb_flush(connection);
}

} // namespace orvelle
