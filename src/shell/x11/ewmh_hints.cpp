#include "shell/x11/ewmh_hints.h"

#include "shell/x11/work_area.h"
#include "shell/x11/x11_connection.h"

#include <algorithm>
#include <array>
#include <limits>
#include <string>

namespace orvelle {
namespace {

constexpr std::uint32_t allDesktops = 0xFFFFFFFF;

/// A root window is at most 65535 pixels wide, so a wider claim means "to the edge".
int pixelCount(std::uint32_t value) {
    return static_cast<int>(std::min<std::uint32_t>(value, std::numeric_limits<std::uint16_t>::max()));
}

/// More screens or desktops than anybody has; one takes four numbers.
constexpr std::uint32_t mostRootNumbers = 1024;

/// The requests about one window, sent at once. Each reply must be taken.
class DockQuestion {
public:
    DockQuestion(xcb_ewmh_connection_t* ewmh, xcb_window_t window, xcb_window_t root)
        : m_ewmh(ewmh)
        , m_partial(xcb_ewmh_get_wm_strut_partial(ewmh, window))
        , m_whole(xcb_ewmh_get_wm_strut(ewmh, window))
        , m_size(xcb_get_geometry(ewmh->connection, window))
        , m_position(xcb_translate_coordinates(ewmh->connection, window, root, 0, 0)) {}

    /// Nothing when the window has gone or reserves no space at the top.
    [[nodiscard]] std::optional<TopDock> takeAnswer() const {
        const TopStrut reserved = takeStrut();
        const auto size = takeReply(xcb_get_geometry_reply(m_ewmh->connection, m_size, nullptr));
        const auto position =
            takeReply(xcb_translate_coordinates_reply(m_ewmh->connection, m_position, nullptr));
        if (reserved.height <= 0 || !size || !position)
            return std::nullopt;
        return TopDock{QRect(position->dst_x, position->dst_y, size->width, size->height), reserved};
    }

private:
    /// `_NET_WM_STRUT_PARTIAL` goes before the older `_NET_WM_STRUT`, which takes the whole width.
    [[nodiscard]] TopStrut takeStrut() const {
        xcb_ewmh_wm_strut_partial_t partial{};
        xcb_ewmh_get_extents_reply_t whole{};
        const bool hasPartial =
            xcb_ewmh_get_wm_strut_partial_reply(m_ewmh, m_partial, &partial, nullptr) != 0;
        const bool hasWhole = xcb_ewmh_get_wm_strut_reply(m_ewmh, m_whole, &whole, nullptr) != 0;
        if (hasPartial)
            return {pixelCount(partial.top), pixelCount(partial.top_start_x), pixelCount(partial.top_end_x)};
        if (hasWhole)
            return {pixelCount(whole.top), 0, std::numeric_limits<std::uint16_t>::max()};
        return {};
    }

    xcb_ewmh_connection_t* m_ewmh;
    xcb_get_property_cookie_t m_partial;
    xcb_get_property_cookie_t m_whole;
    xcb_get_geometry_cookie_t m_size;
    xcb_translate_coordinates_cookie_t m_position;
};

} // namespace

void EwmhHints::Deleter::operator()(xcb_ewmh_connection_t* connection) const {
    xcb_ewmh_connection_wipe(connection);
    delete connection;
}

const EwmhHints* EwmhHints::shared() {
    static std::unique_ptr<EwmhHints> hints;
    xcb_connection_t* connection = xcbConnection();
    if (connection == nullptr)
        return nullptr;
    if (hints == nullptr) {
        if (Connection made = connect(connection))
            hints.reset(new EwmhHints(std::move(made)));
    }
    return hints.get();
}

EwmhHints::Connection EwmhHints::connect(xcb_connection_t* connection) {
    Connection made(new xcb_ewmh_connection_t{});
    // All names go out before the first number is awaited: one round trip in all.
    xcb_intern_atom_cookie_t* cookies = xcb_ewmh_init_atoms(connection, made.get());
    if (cookies != nullptr && xcb_ewmh_init_atoms_replies(made.get(), cookies, nullptr) != 0)
        return made;
    *made = {}; // the library has freed what it allocated
    return nullptr;
}

EwmhHints::EwmhHints(Connection connection)
    : m_ewmh(std::move(connection))
    , m_screen(screenNumber(m_ewmh->connection))
    , m_root(rootWindow(m_ewmh->connection)) {}

void EwmhHints::declareDock(xcb_window_t window) const {
    std::array states{m_ewmh->_NET_WM_STATE_STICKY, m_ewmh->_NET_WM_STATE_SKIP_TASKBAR,
                      m_ewmh->_NET_WM_STATE_SKIP_PAGER};
    xcb_ewmh_set_wm_window_type(m_ewmh.get(), window, 1, &m_ewmh->_NET_WM_WINDOW_TYPE_DOCK);
    xcb_ewmh_set_wm_state(m_ewmh.get(), window, states.size(), states.data());
    xcb_ewmh_set_wm_desktop(m_ewmh.get(), window, allDesktops);
}

void EwmhHints::setStrut(xcb_window_t window, const std::optional<TopStrut>& strut) const {
    if (!strut) {
        xcb_delete_property(m_ewmh->connection, window, m_ewmh->_NET_WM_STRUT_PARTIAL);
        xcb_delete_property(m_ewmh->connection, window, m_ewmh->_NET_WM_STRUT);
    } else {
        const QSize root = rootSize().value_or(QSize());
        const TopStrut counted = strutInUnitsOf(desktopSize().value_or(root), root, *strut);
        xcb_ewmh_wm_strut_partial_t partial{};
        partial.top = static_cast<std::uint32_t>(counted.height);
        partial.top_start_x = static_cast<std::uint32_t>(counted.startX);
        partial.top_end_x = static_cast<std::uint32_t>(counted.endX);
        xcb_ewmh_set_wm_strut_partial(m_ewmh.get(), window, partial);
        xcb_ewmh_set_wm_strut(m_ewmh.get(), window, 0, 0, partial.top, 0);
    }
    xcb_flush(m_ewmh->connection);
}

std::optional<QSize> EwmhHints::rootSize() const {
    const auto reply = takeReply(
        xcb_get_geometry_reply(m_ewmh->connection, xcb_get_geometry(m_ewmh->connection, m_root), nullptr));
    if (!reply)
        return std::nullopt;
    return QSize(reply->width, reply->height);
}

std::vector<std::uint32_t> EwmhHints::rootNumbers(xcb_atom_t property) const {
    xcb_connection_t* connection = m_ewmh->connection;
    const auto reply = takeReply(xcb_get_property_reply(
        connection, xcb_get_property(connection, 0, m_root, property, XCB_ATOM_CARDINAL, 0, mostRootNumbers),
        nullptr));
    if (!reply || reply->format != 32)
        return {};
    const auto* numbers = static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
    return {numbers, numbers + reply->value_len};
}

std::optional<QSize> EwmhHints::desktopSize() const {
    const std::vector<std::uint32_t> size = rootNumbers(m_ewmh->_NET_DESKTOP_GEOMETRY);
    return size.size() == 2 ? std::optional(QSize(pixelCount(size[0]), pixelCount(size[1]))) : std::nullopt;
}

// A window manager that has ended leaves its properties behind, but not the window that this one names.
bool EwmhHints::hasWindowManager() const {
    const auto named = [this](xcb_window_t window) {
        xcb_window_t manager = XCB_WINDOW_NONE;
        const xcb_get_property_cookie_t cookie = xcb_ewmh_get_supporting_wm_check(m_ewmh.get(), window);
        const bool isThere =
            xcb_ewmh_get_supporting_wm_check_reply(m_ewmh.get(), cookie, &manager, nullptr) != 0;
        return isThere ? manager : xcb_window_t{XCB_WINDOW_NONE};
    };
    const xcb_window_t manager = named(m_root);
    return manager != XCB_WINDOW_NONE && named(manager) == manager;
}

std::vector<QRect> EwmhHints::workAreas() const {
    if (!hasWindowManager())
        return {};
    const std::vector<std::uint32_t> current = rootNumbers(m_ewmh->_NET_CURRENT_DESKTOP);
    const std::size_t desktop = current.size() == 1 ? current[0] : 0;
    const xcb_atom_t ofScreens = internAtom(m_ewmh->connection, "_GTK_WORKAREAS_D" + std::to_string(desktop));
    if (std::vector<QRect> areas = workAreasIn(rootNumbers(ofScreens)); !areas.empty())
        return areas;
    constexpr std::size_t numbersOfOne = 4;
    const std::vector<std::uint32_t> ofDesktops = rootNumbers(m_ewmh->_NET_WORKAREA);
    const bool hasThisDesktop = ofDesktops.size() / numbersOfOne > desktop;
    const auto first = std::span(ofDesktops).subspan(hasThisDesktop ? desktop * numbersOfOne : 0);
    return workAreasIn(first.first(std::min(first.size(), numbersOfOne)));
}

std::vector<xcb_window_t> EwmhHints::clients() const {
    xcb_ewmh_get_windows_reply_t reply{};
    const xcb_get_property_cookie_t cookie = xcb_ewmh_get_client_list(m_ewmh.get(), m_screen);
    if (xcb_ewmh_get_client_list_reply(m_ewmh.get(), cookie, &reply, nullptr) == 0)
        return {};
    const std::vector<xcb_window_t> windows(reply.windows, reply.windows + reply.windows_len);
    xcb_ewmh_get_windows_reply_wipe(&reply);
    return windows;
}

std::vector<TopDock> EwmhHints::otherTopDocks(xcb_window_t own) const {
    std::vector<DockQuestion> questions;
    for (const xcb_window_t window : clients()) {
        if (window != own)
            questions.emplace_back(m_ewmh.get(), window, m_root);
    }
    std::vector<TopDock> docks;
    for (const DockQuestion& question : questions) {
        if (const std::optional<TopDock> dock = question.takeAnswer())
            docks.push_back(*dock);
    }
    return docks;
}

bool EwmhHints::isManagerChange(const xcb_generic_event_t& event) const {
    const auto* change = eventAs<xcb_property_notify_event_t>(event, XCB_PROPERTY_NOTIFY);
    return change != nullptr && change->window == m_root &&
           (change->atom == m_ewmh->_NET_DESKTOP_GEOMETRY ||
            change->atom == m_ewmh->_NET_SUPPORTING_WM_CHECK);
}

bool EwmhHints::isLayoutChange(const xcb_generic_event_t& event) const {
    const auto* change = eventAs<xcb_property_notify_event_t>(event, XCB_PROPERTY_NOTIFY);
    return change != nullptr && change->window == m_root &&
           (change->atom == m_ewmh->_NET_CLIENT_LIST || change->atom == m_ewmh->_NET_WORKAREA);
}

void EwmhHints::moveToPresentDesktop(xcb_window_t window) const {
    const xcb_get_property_cookie_t presentCookie = xcb_ewmh_get_current_desktop(m_ewmh.get(), m_screen);
    const xcb_get_property_cookie_t ownCookie = xcb_ewmh_get_wm_desktop(m_ewmh.get(), window);
    std::uint32_t present = 0;
    std::uint32_t own = 0;
    const bool hasPresent =
        xcb_ewmh_get_current_desktop_reply(m_ewmh.get(), presentCookie, &present, nullptr) != 0;
    const bool hasOwn = xcb_ewmh_get_wm_desktop_reply(m_ewmh.get(), ownCookie, &own, nullptr) != 0;
    if (!hasPresent || !hasOwn || own == present || own == allDesktops)
        return;
    // As a request of a pager: the window manager may refuse one of an ordinary program.
    xcb_ewmh_request_change_wm_desktop(m_ewmh.get(), m_screen, window, present,
                                       XCB_EWMH_CLIENT_SOURCE_TYPE_OTHER);
    xcb_flush(m_ewmh->connection);
}

bool EwmhHints::isComposing() const {
    xcb_window_t owner = XCB_WINDOW_NONE;
    const xcb_get_selection_owner_cookie_t cookie = xcb_ewmh_get_wm_cm_owner(m_ewmh.get(), m_screen);
    return xcb_ewmh_get_wm_cm_owner_reply(m_ewmh.get(), cookie, &owner, nullptr) != 0 &&
           owner != XCB_WINDOW_NONE;
}

} // namespace orvelle
