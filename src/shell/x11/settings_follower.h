#pragma once

#include <QAbstractNativeEventFilter>
#include <QObject>
#include <xcb/xcb.h>

#include <functional>
#include <string_view>

namespace orvelle {

/// Follows what the XSETTINGS manager publishes, which is the program that owns a selection. Managers come
/// and go: each announces itself to the root window, whose messages Qt has asked for.
class SettingsFollower final : public QObject, private QAbstractNativeEventFilter {
public:
    /// `read` is given the bytes that xsettings.h reads: now, and whenever they change; none while there is
    /// no manager. Needs the application object.
    SettingsFollower(xcb_connection_t* connection, std::function<void(std::string_view)> read);
    ~SettingsFollower() override;

private:
    bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;
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

} // namespace orvelle
