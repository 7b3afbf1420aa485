#include "shell/x11/single_instance.h"

#include "shell/x11/x11_connection.h"

namespace orvelle {
namespace {

/// A window that is never shown: only a window owns a selection or receives a message.
xcb_window_t createHiddenWindow(xcb_connection_t* connection) {
    const xcb_window_t window = xcb_generate_id(connection);
    xcb_create_window(connection, 0, window, rootWindow(connection), -1, -1, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
    return window;
}

/// Owns the selection by a hidden window, to which later starts send a message.
class SelectionOwner final : public SingleInstance, private X11EventFilter {
public:
    SelectionOwner(xcb_connection_t* connection, xcb_atom_t instance)
        : m_connection(connection)
        , m_instance(instance)
        , m_window(createHiddenWindow(connection)) {
        xcb_set_selection_owner(m_connection, m_window, m_instance, XCB_CURRENT_TIME);
    }
    ~SelectionOwner() override {
        xcb_destroy_window(m_connection, m_window); // gives the selection up
        xcb_flush(m_connection);
    }

private:
    void handleEvent(const xcb_generic_event_t& event) override {
        const auto* message = eventAs<xcb_client_message_event_t>(event, XCB_CLIENT_MESSAGE);
        if (message != nullptr && message->window == m_window && message->type == m_instance)
            Q_EMIT startedAgain();
    }

    xcb_connection_t* m_connection;
    xcb_atom_t m_instance;
    xcb_window_t m_window;
};

void announceAnotherStart(xcb_connection_t* connection, xcb_window_t owner, xcb_atom_t instance) {
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.format = 32;
    message.window = owner;
    message.type = instance;
    xcb_send_event(connection, 0, owner, XCB_EVENT_MASK_NO_EVENT,
                   reinterpret_cast<const char*>(&message)); // to the client that created the window
    xcb_flush(connection);
}

} // namespace

std::unique_ptr<SingleInstance> becomeSingleX11Instance() {
    xcb_connection_t* connection = xcbConnection();
    const xcb_atom_t instance =
        connection != nullptr ? internAtom(connection, "_ORVELLE_INSTANCE") : xcb_atom_t{XCB_ATOM_NONE};
    if (instance == XCB_ATOM_NONE)
        return std::make_unique<SingleInstance>(); // other processes cannot be found
    // No other process may ask between this question and the claim.
    xcb_grab_server(connection);
    const xcb_window_t owner = selectionOwner(connection, instance);
    std::unique_ptr<SingleInstance> only;
    if (owner != XCB_WINDOW_NONE)
        announceAnotherStart(connection, owner, instance);
    else
        only = std::make_unique<SelectionOwner>(connection, instance);
    xcb_ungrab_server(connection);
    xcb_flush(connection);
    return only;
}

} // namespace orvelle
