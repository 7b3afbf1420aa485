#include "shell/x11/single_instance.h"

#include "shell/x11/x11_connection.h"

#include <algorithm>
#include <cstring>

namespace orvelle {
namespace {

/// A window that is never shown: only a window owns a selection or receives a message.
xcb_window_t createHiddenWindow(xcb_connection_t* connection) {
    const xcb_window_t window = xcb_generate_id(connection);
    xcb_create_window(connection, 0, window, rootWindow(connection), -1, -1, 1, 1, 0,
                      XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
    return window;
}

/// Filled up with zeros.
void writeRequest(const StartRequest& request, xcb_client_message_event_t& message) {
    static_assert(sizeof message.data.data8 == longestStartRequest);
    const QByteArray text = startRequestText(request);
    message.format = 8;
    std::copy_n(text.begin(), std::min<qsizetype>(text.size(), longestStartRequest), message.data.data8);
}

StartRequest requestIn(const xcb_client_message_event_t& message) {
    const auto* text = reinterpret_cast<const char*>(message.data.data8);
    return parseStartRequest({text, static_cast<qsizetype>(::strnlen(text, longestStartRequest))});
}

/// The number of the selection; XCB_ATOM_NONE off X11.
xcb_atom_t instanceAtom(xcb_connection_t* connection) {
    return connection != nullptr ? internAtom(connection, "_ORVELLE_INSTANCE") : xcb_atom_t{XCB_ATOM_NONE};
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
            Q_EMIT startedAgain(requestIn(*message));
    }

    xcb_connection_t* m_connection;
    xcb_atom_t m_instance;
    xcb_window_t m_window;
};

void sendRequest(xcb_connection_t* connection, xcb_window_t owner, xcb_atom_t instance,
                 const StartRequest& request) {
    xcb_client_message_event_t message{};
    message.response_type = XCB_CLIENT_MESSAGE;
    message.window = owner;
    message.type = instance;
    writeRequest(request, message);
    xcb_send_event(connection, 0, owner, XCB_EVENT_MASK_NO_EVENT,
                   reinterpret_cast<const char*>(&message)); // to the client that created the window
    xcb_flush(connection);
}

} // namespace

std::unique_ptr<SingleInstance> becomeSingleX11Instance(const StartRequest& request) {
    xcb_connection_t* connection = xcbConnection();
    const xcb_atom_t instance = instanceAtom(connection);
    if (instance == XCB_ATOM_NONE)
        return std::make_unique<SingleInstance>(); // other processes cannot be found
    // No other process may ask between this question and the claim.
    xcb_grab_server(connection);
    const xcb_window_t owner = selectionOwner(connection, instance);
    std::unique_ptr<SingleInstance> only;
    if (owner != XCB_WINDOW_NONE)
        sendRequest(connection, owner, instance, request);
    else
        only = std::make_unique<SelectionOwner>(connection, instance);
    xcb_ungrab_server(connection);
    xcb_flush(connection);
    return only;
}

bool isRunningElsewhereOnX11() {
    xcb_connection_t* connection = xcbConnection();
    const xcb_atom_t instance = instanceAtom(connection);
    return instance != XCB_ATOM_NONE && selectionOwner(connection, instance) != XCB_WINDOW_NONE;
}

} // namespace orvelle
