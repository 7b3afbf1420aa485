#include "app/shell/desktop.h"
#include "app/shell/x11/x11_connection.h"

namespace orvelle {
namespace {

/// A window that is never shown: what owns a selection must be a window.
xcb_window_t createHiddenWindow(xcb_connection_t* connection) {
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    const xcb_window_t window = xcb_generate_id(connection);
    xcb_create_window(connection, 0, window, root, -1, -1, 1, 1, 0, XCB_WINDOW_CLASS_INPUT_ONLY,
                      XCB_COPY_FROM_PARENT, 0, nullptr);
    return window;
}

} // namespace

// The server keeps who owns a selection and forgets it when that process ends, however it ends; unlike a file
// it also tells apart the desktops of one user.
bool becomeOnlyInstance() {
    xcb_connection_t* connection = xcbConnection();
    if (connection == nullptr)
        return true;
    const xcb_atom_t instance = internAtom(connection, "_ORVELLE_INSTANCE");
    if (instance == XCB_ATOM_NONE)
        return true;
    // Nobody else may ask between the question and the claim.
    xcb_grab_server(connection);
    const auto owner = takeReply(
        xcb_get_selection_owner_reply(connection, xcb_get_selection_owner(connection, instance), nullptr));
    const bool isOnly = !owner || owner->owner == XCB_WINDOW_NONE;
    if (isOnly)
        xcb_set_selection_owner(connection, createHiddenWindow(connection), instance, XCB_CURRENT_TIME);
    xcb_ungrab_server(connection);
    xcb_flush(connection);
    return isOnly;
}

} // namespace orvelle
