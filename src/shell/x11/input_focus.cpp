#include "shell/x11/input_focus.h"

#include "shell/x11/x11_connection.h"

#include <optional>

namespace orvelle {
namespace {

/// Whether the server did it. It refuses for a window that has gone or is not on the screen.
bool setInputFocus(xcb_connection_t* connection, xcb_window_t window) {
    const auto cookie =
        xcb_set_input_focus_checked(connection, XCB_INPUT_FOCUS_POINTER_ROOT, window, XCB_CURRENT_TIME);
    return takeReply(xcb_request_check(connection, cookie)) == nullptr;
}

/// The window with the keyboard, or what the server says in the place of one; nothing when it does not
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

void InputFocus::take(WId window) {
    const std::optional<xcb_window_t> focus = inputFocus();
    if (focus && *focus != static_cast<xcb_window_t>(window))
        m_previous = *focus;
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
