#pragma once

#include <xcb/xcb.h>

#include <cstdlib>
#include <memory>
#include <string_view>

namespace orvelle {

struct FreeReply {
    void operator()(void* reply) const { std::free(reply); }
};
template <class Reply>
using ReplyPointer = std::unique_ptr<Reply, FreeReply>;

/// Owns a reply; empty when the request failed, as it does for a window that has just gone.
template <class Reply>
ReplyPointer<Reply> takeReply(Reply* reply) {
    return ReplyPointer<Reply>(reply);
}

/// Qt's connection to the X server; null off X11. Needs the application object.
[[nodiscard]] xcb_connection_t* xcbConnection();

/// The number of the screen that DISPLAY names, where a server has several separate ones.
[[nodiscard]] int screenNumber();

/// The root window of that screen.
[[nodiscard]] xcb_window_t rootWindow(xcb_connection_t* connection);

/// The number of a name; XCB_ATOM_NONE when the server does not answer.
[[nodiscard]] xcb_atom_t internAtom(xcb_connection_t* connection, std::string_view name);

} // namespace orvelle
