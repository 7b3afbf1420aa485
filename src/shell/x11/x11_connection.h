#pragma once

#include <QAbstractNativeEventFilter>
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

/// The number of the screen that DISPLAY names, where a server has several separate ones. It is the number of
/// a screen that the server has.
[[nodiscard]] int screenNumber(xcb_connection_t* connection);

/// The root window of that screen.
[[nodiscard]] xcb_window_t rootWindow(xcb_connection_t* connection);

/// The number of a name; XCB_ATOM_NONE when the server does not answer.
[[nodiscard]] xcb_atom_t internAtom(xcb_connection_t* connection, std::string_view name);

/// The window that owns a selection; XCB_WINDOW_NONE when there is none or the server does not answer.
[[nodiscard]] xcb_window_t selectionOwner(xcb_connection_t* connection, xcb_atom_t selection);

/// Sees every event of Qt's connection before Qt handles it, for as long as the object exists. Off X11 there
/// are none. Main thread only.
class X11EventFilter : private QAbstractNativeEventFilter {
protected:
    X11EventFilter();
    virtual void handleEvent(const xcb_generic_event_t& event) = 0;

private:
    bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) final;
};

/// The kind of a core event, such as XCB_PROPERTY_NOTIFY, no matter who sent it.
[[nodiscard]] std::uint8_t eventKind(const xcb_generic_event_t& event);

/// The event as its own type, which belongs to `kind`; null when it is of another kind.
template <class Event>
[[nodiscard]] const Event* eventAs(const xcb_generic_event_t& event, std::uint8_t kind) {
    return eventKind(event) == kind ? reinterpret_cast<const Event*>(&event) : nullptr;
}

/// The same for an event of the extension to which the server gave this opcode.
template <class Event>
[[nodiscard]] const Event* extensionEventAs(const xcb_generic_event_t& event, std::uint8_t opcode,
                                            std::uint16_t kind) {
    const auto& generic = reinterpret_cast<const xcb_ge_generic_event_t&>(event);
    const bool isWanted =
        event.response_type == XCB_GE_GENERIC && generic.extension == opcode && generic.event_type == kind;
    return isWanted ? reinterpret_cast<const Event*>(&event) : nullptr;
}

} // namespace orvelle
