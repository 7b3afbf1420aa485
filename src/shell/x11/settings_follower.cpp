#include "shell/x11/settings_follower.h"

#include "shell/x11/x11_connection.h"

#include <QGuiApplication>

#include <string>
#include <utility>

namespace orvelle {
namespace {

/// Published settings take some kilobytes; one word is 32 bits.
constexpr std::uint32_t maximumSettingsWords = 65536;

constexpr std::uint8_t sentByClient = 0x80;

} // namespace

SettingsFollower::SettingsFollower(xcb_connection_t* connection, std::function<void(std::string_view)> read)
    : m_connection(connection)
    , m_read(std::move(read))
    , m_selection(internAtom(connection, "_XSETTINGS_S" + std::to_string(screenNumber())))
    , m_settings(internAtom(connection, "_XSETTINGS_SETTINGS"))
    , m_manager(internAtom(connection, "MANAGER")) {
    qGuiApp->installNativeEventFilter(this);
    findOwner();
}

SettingsFollower::~SettingsFollower() {
    qGuiApp->removeNativeEventFilter(this);
}

bool SettingsFollower::nativeEventFilter(const QByteArray& eventType, void* message, qintptr* /*result*/) {
    if (eventType != "xcb_generic_event_t")
        return false;
    const auto& event = *static_cast<const xcb_generic_event_t*>(message);
    if (isOwnerChange(event))
        findOwner();
    else if (isSettingsChange(event))
        readSettings();
    return false;
}

bool SettingsFollower::isOwnerChange(const xcb_generic_event_t& event) const {
    switch (event.response_type & ~sentByClient) {
    case XCB_CLIENT_MESSAGE: {
        const auto& message = reinterpret_cast<const xcb_client_message_event_t&>(event);
        return message.type == m_manager && message.format == 32 && message.data.data32[1] == m_selection;
    }
    case XCB_DESTROY_NOTIFY:
        return m_owner != XCB_WINDOW_NONE &&
               reinterpret_cast<const xcb_destroy_notify_event_t&>(event).window == m_owner;
    default:
        return false;
    }
}

bool SettingsFollower::isSettingsChange(const xcb_generic_event_t& event) const {
    if ((event.response_type & ~sentByClient) != XCB_PROPERTY_NOTIFY)
        return false;
    const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(event);
    return m_owner != XCB_WINDOW_NONE && change.window == m_owner && change.atom == m_settings;
}

void SettingsFollower::findOwner() {
    const auto reply = takeReply(xcb_get_selection_owner_reply(
        m_connection, xcb_get_selection_owner(m_connection, m_selection), nullptr));
    m_owner = reply ? reply->owner : xcb_window_t{XCB_WINDOW_NONE};
    if (m_owner != XCB_WINDOW_NONE) {
        // The same events that Qt asks for when it follows the settings itself: there is one list for all
        // that one connection wants of a window.
        const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY;
        // The window may have gone by now, which is nothing to report.
        xcb_discard_reply(
            m_connection,
            xcb_change_window_attributes_checked(m_connection, m_owner, XCB_CW_EVENT_MASK, &events).sequence);
    }
    // After the events have been asked for, so that no change can slip through between the two.
    readSettings();
}

void SettingsFollower::readSettings() {
    if (m_owner == XCB_WINDOW_NONE)
        return m_read({});
    const auto reply = takeReply(xcb_get_property_reply(
        m_connection,
        xcb_get_property(m_connection, 0, m_owner, m_settings, m_settings, 0, maximumSettingsWords),
        nullptr));
    if (!reply || reply->format != 8)
        return m_read({});
    m_read({static_cast<const char*>(xcb_get_property_value(reply.get())), reply->value_len});
}

} // namespace orvelle
