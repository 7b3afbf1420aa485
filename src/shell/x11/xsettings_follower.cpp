#include "shell/x11/xsettings_follower.h"

#include "animation/animation_clock.h"
#include "shell/x11/x11_connection.h"
#include "shell/x11/xsettings.h"
#include "theme/fonts.h"

#include <functional>
#include <string>
#include <utility>

namespace orvelle {
namespace {

/// Published settings take some kilobytes; one word is 32 bits.
constexpr std::uint32_t maximumSettingsWords = 65536;

/// Follows the settings of the XSETTINGS manager, the program that owns a certain selection. Managers come
/// and go: each announces itself to the root window, whose messages Qt has selected.
class XSettingsFollower final : public QObject, private X11EventFilter {
public:
    /// Calls `read` with the bytes that xsettings.h parses, now and after every change; with none while there
    /// is no manager.
    XSettingsFollower(xcb_connection_t* connection, std::function<void(std::string_view)> read)
        : m_connection(connection)
        , m_read(std::move(read))
        , m_selection(internAtom(connection, "_XSETTINGS_S" + std::to_string(screenNumber(connection))))
        , m_settings(internAtom(connection, "_XSETTINGS_SETTINGS"))
        , m_manager(internAtom(connection, "MANAGER")) {
        findOwner();
    }

private:
    void handleEvent(const xcb_generic_event_t& event) override {
        if (isOwnerChange(event))
            findOwner();
        else if (isSettingsChange(event))
            readSettings();
    }
    [[nodiscard]] bool isOwnerChange(const xcb_generic_event_t& event) const;
    [[nodiscard]] bool isSettingsChange(const xcb_generic_event_t& event) const;
    void findOwner();
    void readSettings();

    xcb_connection_t* m_connection;
    std::function<void(std::string_view)> m_read;
    xcb_atom_t m_selection;
    xcb_atom_t m_settings;
    xcb_atom_t m_manager;
    xcb_window_t m_owner = XCB_WINDOW_NONE;
};

bool XSettingsFollower::isOwnerChange(const xcb_generic_event_t& event) const {
    if (const auto* message = eventAs<xcb_client_message_event_t>(event, XCB_CLIENT_MESSAGE))
        return message->type == m_manager && message->format == 32 && message->data.data32[1] == m_selection;
    const auto* destroyed = eventAs<xcb_destroy_notify_event_t>(event, XCB_DESTROY_NOTIFY);
    return destroyed != nullptr && m_owner != XCB_WINDOW_NONE && destroyed->window == m_owner;
}

bool XSettingsFollower::isSettingsChange(const xcb_generic_event_t& event) const {
    const auto* change = eventAs<xcb_property_notify_event_t>(event, XCB_PROPERTY_NOTIFY);
    return change != nullptr && m_owner != XCB_WINDOW_NONE && change->window == m_owner &&
           change->atom == m_settings;
}

void XSettingsFollower::findOwner() {
    m_owner = selectionOwner(m_connection, m_selection);
    if (m_owner != XCB_WINDOW_NONE) {
        // The same events that Qt selects when it follows the settings itself: a connection has one selection
        // for each window.
        const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY;
        // The window may have gone by now; that error is ignored.
        xcb_discard_reply(
            m_connection,
            xcb_change_window_attributes_checked(m_connection, m_owner, XCB_CW_EVENT_MASK, &events).sequence);
    }
    // After the events have been selected, so that no change is missed between the two.
    readSettings();
}

void XSettingsFollower::readSettings() {
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

/// Null off X11.
std::unique_ptr<QObject> followXSettings(std::function<void(std::string_view)> read) {
    xcb_connection_t* connection = xcbConnection();
    if (connection == nullptr)
        return nullptr;
    return std::make_unique<XSettingsFollower>(connection, std::move(read));
}

QString textOf(std::string_view settings, std::string_view name) {
    const std::string_view text = textSetting(settings, name).value_or(std::string_view());
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace

std::unique_ptr<QObject> followXSettingsMotion(AnimationClock& clock) {
    return followXSettings([&clock](std::string_view settings) {
        clock.setReduced(integerSetting(settings, "Gtk/EnableAnimations") == 0);
    });
}

std::unique_ptr<QObject> followXSettingsFonts() {
    return followXSettings([](std::string_view settings) {
        setDesktopFontNames({.proportional = textOf(settings, "Gtk/FontName"),
                             .monospaced = textOf(settings, "Gtk/MonospaceFontName")});
    });
}

} // namespace orvelle
