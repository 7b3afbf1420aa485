#include "shell/x11/x11_input.h"

#include <xcb/xinput.h>

#include <optional>

namespace orvelle {
namespace {

/// Selects the events in `mask` on the root window, in place of the previous selection. It does not change
/// Qt's selection there, which is for another group of devices.
void selectEvents(xcb_connection_t* connection, std::uint32_t mask) {
    struct {
        xcb_input_event_mask_t head;
        std::uint32_t mask;
    } const selection{{XCB_INPUT_DEVICE_ALL_MASTER, 1}, mask};
    xcb_input_xi_select_events(connection, rootWindow(connection), 1, &selection.head);
    xcb_flush(connection);
}

/// One selection serves all that listen.
int listenerCount = 0;

bool isWheel(std::uint32_t button) {
    return button >= 4 && button <= 7;
}

/// Returns whether the server accepted it. It refuses a window that has gone or is not on the screen.
bool setInputFocus(xcb_connection_t* connection, xcb_window_t window) {
    const auto cookie =
        xcb_set_input_focus_checked(connection, XCB_INPUT_FOCUS_POINTER_ROOT, window, XCB_CURRENT_TIME);
    return takeReply(xcb_request_check(connection, cookie)) == nullptr;
}

/// The window with the keyboard, or a constant such as XCB_INPUT_FOCUS_NONE; nothing when the server does not
/// answer.
std::optional<xcb_window_t> inputFocus() {
    xcb_connection_t* connection = xcbConnection();
    if (connection == nullptr)
        return std::nullopt;
    const auto focus =
        takeReply(xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
    return focus ? std::optional(focus->focus) : std::nullopt;
}

} // namespace

PointerPresses::PointerPresses() {
    xcb_connection_t* connection = xcbConnection();
    if (connection == nullptr)
        return;
    // A request to an extension that the server lacks would end the connection.
    const xcb_query_extension_reply_t* extension = xcb_get_extension_data(connection, &xcb_input_id);
    if (extension == nullptr || extension->present == 0)
        return;
    m_extension = extension->major_opcode;
    if (++listenerCount == 1)
        selectEvents(connection, XCB_INPUT_XI_EVENT_MASK_RAW_BUTTON_PRESS);
}

PointerPresses::~PointerPresses() {
    if (m_extension == 0)
        return;
    xcb_connection_t* connection = xcbConnection();
    if (--listenerCount == 0 && connection != nullptr)
        selectEvents(connection, 0);
}

void PointerPresses::handleEvent(const xcb_generic_event_t& event) {
    const auto* press =
        extensionEventAs<xcb_input_raw_button_press_event_t>(event, m_extension, XCB_INPUT_RAW_BUTTON_PRESS);
    if (press != nullptr && !isWheel(press->detail))
        Q_EMIT pressed();
}

void InputFocus::remember(WId window) {
    const std::optional<xcb_window_t> focus = inputFocus();
    if (focus && *focus != static_cast<xcb_window_t>(window))
        m_previous = *focus;
}

void InputFocus::take(WId window) {
    remember(window);
    takeOver(window);
}

bool InputFocus::isIn(WId window) {
    return inputFocus() == static_cast<xcb_window_t>(window);
}

void InputFocus::takeOver(WId window) {
    if (xcb_connection_t* connection = xcbConnection())
        setInputFocus(connection, static_cast<xcb_window_t>(window));
}

void InputFocus::giveBack() {
    xcb_connection_t* connection = xcbConnection();
    if (connection != nullptr && !setInputFocus(connection, m_previous))
        setInputFocus(connection, XCB_INPUT_FOCUS_POINTER_ROOT);
}

} // namespace orvelle
