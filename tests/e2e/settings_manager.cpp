// The program of a desktop that publishes its settings, for the end-to-end tests: for each line on its
// standard input, a number and the description of a font, it publishes that animations are enabled (1) or not
// (0) and that font. It ends with its input.

#include "support/xsettings_bytes.h"

#include <xcb/xcb.h>

#include <cstdlib>
#include <iostream>
#include <memory>
#include <string>

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

void publish(xcb_connection_t* connection, xcb_window_t window, int animations, std::string_view font) {
    const std::string bytes = orvelle::XSettingsBytes()
                                  .text("Net/ThemeName", "Adwaita")
                                  .integer("Gtk/EnableAnimations", animations)
                                  .text("Gtk/FontName", font)
                                  .bytes();
    const xcb_atom_t settings = atom(connection, "_XSETTINGS_SETTINGS");
    xcb_change_property(connection, XCB_PROP_MODE_REPLACE, window, settings, settings, 8,
                        static_cast<std::uint32_t>(bytes.size()), bytes.data());
}

/// Takes the selection and tells everyone, as a new manager does.
void becomeManager(xcb_connection_t* connection, xcb_window_t window, xcb_window_t root) {
    const xcb_atom_t selection = atom(connection, "_XSETTINGS_S0");
    xcb_set_selection_owner(connection, window, selection, XCB_CURRENT_TIME);
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = root;
    message.type = atom(connection, "MANAGER");
    message.data.data32[0] = XCB_CURRENT_TIME;
    message.data.data32[1] = selection;
    message.data.data32[2] = window;
    xcb_send_event(connection, 0, root, XCB_EVENT_MASK_STRUCTURE_NOTIFY,
                   reinterpret_cast<const char*>(&message));
}

} // namespace

int main() {
    xcb_connection_t* connection = xcb_connect(nullptr, nullptr);
    if (xcb_connection_has_error(connection) != 0)
        return EXIT_FAILURE;
    const xcb_screen_t* screen = xcb_setup_roots_iterator(xcb_get_setup(connection)).data;
    const xcb_window_t window = xcb_generate_id(connection);
    xcb_create_window(connection, XCB_COPY_FROM_PARENT, window, screen->root, 0, 0, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_OUTPUT, screen->root_visual, 0, nullptr);
    bool isManager = false;
    int animations = 0;
    std::string font;
    while (std::cin >> animations && std::getline(std::cin >> std::ws, font)) {
        publish(connection, window, animations, font);
        if (!isManager)
            becomeManager(connection, window, screen->root);
        isManager = true;
        xcb_flush(connection);
    }
    xcb_disconnect(connection);
    return EXIT_SUCCESS;
}
