#include "app/shell/desktop.h"
#include "app/shell/x11/x11_connection.h"
#include "app/shell/x11/xsettings.h"
#include "charts/motion.h"

#include <QAbstractNativeEventFilter>
#include <QGuiApplication>

#include <string>

namespace orvelle {
namespace {

/// Published settings take some kilobytes; one word is 32 bits.
constexpr std::uint32_t maximumSettingsWords = 65536;

/// Follows the setting "Gtk/EnableAnimations" of the XSETTINGS manager, which is the program that owns a
/// selection. Managers come and go: each announces itself to the root window, whose messages Qt has asked
/// for.
class ReducedMotion final : public QObject, private QAbstractNativeEventFilter {
public:
    ReducedMotion(Motion& motion, xcb_connection_t* connection)
        : m_motion(motion)
        , m_connection(connection)
        , m_selection(internAtom(connection, "_XSETTINGS_S" + std::to_string(screenNumber())))
        , m_settings(internAtom(connection, "_XSETTINGS_SETTINGS"))
        , m_manager(internAtom(connection, "MANAGER")) {
        qGuiApp->installNativeEventFilter(this);
        findOwner();
    }
    ~ReducedMotion() override { qGuiApp->removeNativeEventFilter(this); }

private:
    bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* /*result*/) override {
        if (eventType != "xcb_generic_event_t")
            return false;
        const auto& event = *static_cast<const xcb_generic_event_t*>(message);
        if (isOwnerChange(event))
            findOwner();
        else if (isSettingsChange(event))
            read();
        return false;
    }

    [[nodiscard]] bool isOwnerChange(const xcb_generic_event_t& event) const {
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

    [[nodiscard]] bool isSettingsChange(const xcb_generic_event_t& event) const {
        if ((event.response_type & ~sentByClient) != XCB_PROPERTY_NOTIFY)
            return false;
        const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(event);
        return m_owner != XCB_WINDOW_NONE && change.window == m_owner && change.atom == m_settings;
    }

    void findOwner() {
        const auto reply = takeReply(xcb_get_selection_owner_reply(
            m_connection, xcb_get_selection_owner(m_connection, m_selection), nullptr));
        m_owner = reply ? reply->owner : xcb_window_t{XCB_WINDOW_NONE};
        if (m_owner != XCB_WINDOW_NONE) {
            // The same events that Qt asks for when it follows the settings itself: there is one list for all
            // that one connection wants of a window.
            const std::uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE | XCB_EVENT_MASK_STRUCTURE_NOTIFY;
            // The window may have gone by now, which is nothing to report.
            xcb_discard_reply(m_connection, xcb_change_window_attributes_checked(m_connection, m_owner,
                                                                                 XCB_CW_EVENT_MASK, &events)
                                                .sequence);
        }
        // After the events have been asked for, so that no change can slip through between the two.
        read();
    }

    void read() { m_motion.setReduced(animationsEnabled() == 0); }

    /// Nothing when the desktop does not say.
    [[nodiscard]] std::optional<std::int32_t> animationsEnabled() const {
        if (m_owner == XCB_WINDOW_NONE)
            return std::nullopt;
        const auto reply = takeReply(xcb_get_property_reply(
            m_connection,
            xcb_get_property(m_connection, 0, m_owner, m_settings, m_settings, 0, maximumSettingsWords),
            nullptr));
        if (!reply || reply->format != 8)
            return std::nullopt;
        const auto* bytes = static_cast<const char*>(xcb_get_property_value(reply.get()));
        return integerSetting({bytes, reply->value_len}, "Gtk/EnableAnimations");
    }

    static constexpr std::uint8_t sentByClient = 0x80;

    Motion& m_motion;
    xcb_connection_t* m_connection;
    xcb_atom_t m_selection;
    xcb_atom_t m_settings;
    xcb_atom_t m_manager;
    xcb_window_t m_owner = XCB_WINDOW_NONE;
};

} // namespace

std::unique_ptr<QObject> followReducedMotion(Motion& motion) {
    xcb_connection_t* connection = xcbConnection();
    if (connection == nullptr)
        return nullptr;
    return std::make_unique<ReducedMotion>(motion, connection);
}

} // namespace orvelle
