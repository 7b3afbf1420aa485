// Another program on the same desktop, for the end-to-end tests: an ordinary window, or a panel that reserves
// the top of the screen. It prints its window's id once it is mapped and "pressed" for each press of a mouse
// button on it, and stays until it is ended.
//
//   x11_client window
//   x11_client panel HEIGHT      (pixels)
//   x11_client close WINDOW      asks a window to close, and ends
//   x11_client ping WINDOW       asks a window for an answer, and ends when it came
//   x11_client owner SELECTION   a window that owns a selection, as a compositor does

#include <xcb/xcb.h>

#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <vector>

namespace {

struct FreeReply {
    void operator()(void* reply) const { std::free(reply); }
};

xcb_atom_t atom(xcb_connection_t* connection, std::string_view name) {
    const auto cookie = xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(name.size()), name.data());
    const std::unique_ptr<xcb_intern_atom_reply_t, FreeReply> reply(
        xcb_intern_atom_reply(connection, cookie, nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

void becomePanel(xcb_connection_t* connection, xcb_window_t window, std::uint32_t width,
                 std::uint32_t height) {
    const auto set = [&](std::string_view name, xcb_atom_t type, const std::vector<std::uint32_t>& values) {
        xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, atom(connection, name), type, 32,
                            static_cast<std::uint32_t>(values.size()), values.data());
    };
    set("_NET_WM_WINDOW_TYPE", XCB_ATOM_ATOM, {atom(connection, "_NET_WM_WINDOW_TYPE_DOCK")});
    constexpr std::uint32_t userSpecifiedPosition = 1; // else the window manager places the panel
    std::vector<std::uint32_t> sizeHints(18);
    sizeHints[0] = userSpecifiedPosition;
    set("WM_NORMAL_HINTS", XCB_ATOM_WM_SIZE_HINTS, sizeHints);
    set("_NET_WM_STRUT_PARTIAL", XCB_ATOM_CARDINAL, {0, 0, height, 0, 0, 0, 0, 0, 0, width - 1, 0, 0});
}

using Event = std::unique_ptr<xcb_generic_event_t, FreeReply>;

/// Sends a window a message of the kind that window managers send.
void sendProtocol(xcb_connection_t* connection, xcb_window_t window, xcb_atom_t protocol) {
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = window;
    message.type = atom(connection, "WM_PROTOCOLS");
    message.data.data32[0] = protocol;
    message.data.data32[2] = window; // a ping is answered with it
    xcb_send_event(connection, 0, window, XCB_EVENT_MASK_NO_EVENT, reinterpret_cast<const char*>(&message));
}

/// Asks a window to close, as the button in a title bar does (ICCCM, section 4.2.8.1). The server may drop
/// what a client asked for just before it leaves, so this waits until everything is done.
void askToClose(xcb_connection_t* connection, xcb_window_t window) {
    sendProtocol(connection, window, atom(connection, "WM_DELETE_WINDOW"));
    std::free(xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
}

/// Returns when the window's program has handled all that came before: the answer to a ping goes to the root
/// window.
void awaitAnswer(xcb_connection_t* connection, xcb_window_t root, xcb_window_t window) {
    const xcb_atom_t ping = atom(connection, "_NET_WM_PING");
    // Answers are sent to who selects the latter; Qt sends them to who selects the former.
    const std::uint32_t events = XCB_EVENT_MASK_STRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(connection, root, XCB_CW_EVENT_MASK, &events);
    sendProtocol(connection, window, ping);
    xcb_flush(connection);
    while (const Event event{xcb_wait_for_event(connection)}) {
        constexpr std::uint8_t sentByClient = 0x80;
        const auto& message = reinterpret_cast<const xcb_client_message_event_t&>(*event);
        if ((event->response_type & ~sentByClient) == XCB_CLIENT_MESSAGE && message.data.data32[0] == ping &&
            message.data.data32[2] == window)
            return;
    }
}

} // namespace

int main(int argumentCount, char** arguments) {
    xcb_connection_t* connection = xcb_connect(nullptr, nullptr);
    if (argumentCount < 2 || xcb_connection_has_error(connection) != 0)
        return EXIT_FAILURE;
    const xcb_screen_t* screen = xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
    const std::string_view task = arguments[1];
    if ((task == "close" || task == "ping") && argumentCount == 3) {
        const auto other = static_cast<xcb_window_t>(std::strtoul(arguments[2], nullptr, 0));
        if (task == "close")
            askToClose(connection, other);
        else
            awaitAnswer(connection, screen->root, other);
        xcb_disconnect(connection);
        return EXIT_SUCCESS;
    }
    const bool isPanel = task == "panel" && argumentCount == 3;
    const bool isOwner = task == "owner" && argumentCount == 3;
    const std::uint16_t width = isPanel ? screen->width_in_pixels : 400;
    const auto height = static_cast<std::uint16_t>(isPanel ? std::atoi(arguments[2]) : 300);
    const std::array<std::uint32_t, 2> values{0x3070A0, XCB_EVENT_MASK_BUTTON_PRESS}; // background, events

    const xcb_window_t window = xcb_generate_id(connection);
    xcb_create_window(connection, XCB_COPY_FROM_PARENT, window, screen->root, 0, 0, width, height, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, screen->root_visual,
                      XCB_CW_BACK_PIXEL | XCB_CW_EVENT_MASK, values.data());
    if (isPanel)
        becomePanel(connection, window, width, height);
    if (isOwner)
        xcb_set_selection_owner(connection, window, atom(connection, arguments[2]), XCB_CURRENT_TIME);
    else
        xcb_map_window(connection, window);
    xcb_flush(connection);
    std::printf("0x%x\n", window);
    std::fflush(stdout);
    while (const Event event{xcb_wait_for_event(connection)}) {
        if (event->response_type == XCB_BUTTON_PRESS) {
            std::puts("pressed");
            std::fflush(stdout);
        }
    }
    return EXIT_SUCCESS;
}
