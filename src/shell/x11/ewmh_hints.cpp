#include "shell/x11/ewmh_hints.h"

#include "shell/x11/x11_connection.h"

#include <limits>
#include <string_view>

namespace orvelle {
namespace {

/// No property that is read here is longer; one word is 32 bits.
constexpr std::uint32_t maximumPropertyWords = 4096;

constexpr std::uint32_t allDesktops = 0xFFFFFFFF;

/// A root window is at most 65535 pixels wide, so a wider claim means "to the edge".
int pixelCount(std::uint32_t value) {
    return static_cast<int>(std::min<std::uint32_t>(value, std::numeric_limits<std::uint16_t>::max()));
}

/// `_NET_WM_STRUT_PARTIAL` has 12 numbers and goes before the older `_NET_WM_STRUT`, which has 4 and takes
/// the whole width.
TopStrut topStrut(const std::vector<std::uint32_t>& partial, const std::vector<std::uint32_t>& whole) {
    if (partial.size() >= 10)
        return {pixelCount(partial[2]), pixelCount(partial[8]), pixelCount(partial[9])};
    if (whole.size() >= 4)
        return {pixelCount(whole[2]), 0, std::numeric_limits<std::uint16_t>::max()};
    return {};
}

} // namespace

EwmhHints::EwmhHints(xcb_connection_t* connection, xcb_window_t window)
    : m_connection(connection) {
    constexpr std::array<std::string_view, atomCount> names{
        "_NET_WM_WINDOW_TYPE",
        "_NET_WM_WINDOW_TYPE_DOCK",
        "_NET_WM_STATE",
        "_NET_WM_STATE_STICKY",
        "_NET_WM_STATE_SKIP_TASKBAR",
        "_NET_WM_STATE_SKIP_PAGER",
        "_NET_WM_DESKTOP",
        "_NET_WM_STRUT",
        "_NET_WM_STRUT_PARTIAL",
        "_NET_CLIENT_LIST",
        "_NET_WORKAREA",
        "_NET_SUPPORTING_WM_CHECK",
    };
    // All questions go out before the first answer is awaited: one round trip in all.
    const xcb_get_geometry_cookie_t geometry = xcb_get_geometry(connection, window);
    std::array<xcb_intern_atom_cookie_t, atomCount> cookies{};
    for (std::size_t index = 0; index < atomCount; ++index)
        cookies[index] = xcb_intern_atom(connection, 0, static_cast<std::uint16_t>(names[index].size()),
                                         names[index].data());
    if (const auto reply = takeReply(xcb_get_geometry_reply(connection, geometry, nullptr)))
        m_root = reply->root;
    for (std::size_t index = 0; index < atomCount; ++index) {
        if (const auto reply = takeReply(xcb_intern_atom_reply(connection, cookies[index], nullptr)))
            m_atoms[index] = reply->atom;
    }
}

void EwmhHints::set(xcb_window_t window, Atom property, xcb_atom_t type,
                    const std::vector<std::uint32_t>& values) const {
    xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, window, m_atoms[property], type, 32,
                        static_cast<std::uint32_t>(values.size()), values.data());
}

void EwmhHints::declareDock(xcb_window_t window) const {
    set(window, windowType, XCB_ATOM_ATOM, {m_atoms[windowTypeDock]});
    set(window, state, XCB_ATOM_ATOM,
        {m_atoms[stateSticky], m_atoms[stateSkipTaskbar], m_atoms[stateSkipPager]});
    set(window, desktop, XCB_ATOM_CARDINAL, {allDesktops});
}

void EwmhHints::setStrut(xcb_window_t window, const std::optional<TopStrut>& reserved) const {
    if (!reserved) {
        xcb_delete_property(m_connection, window, m_atoms[strutPartial]);
        xcb_delete_property(m_connection, window, m_atoms[strut]);
    } else {
        const auto height = static_cast<std::uint32_t>(reserved->height);
        const auto startX = static_cast<std::uint32_t>(reserved->startX);
        const auto endX = static_cast<std::uint32_t>(reserved->endX);
        // left, right, top, bottom; then the first and last row or column of each
        set(window, strutPartial, XCB_ATOM_CARDINAL, {0, 0, height, 0, 0, 0, 0, 0, startX, endX, 0, 0});
        set(window, strut, XCB_ATOM_CARDINAL, {0, 0, height, 0});
    }
    xcb_flush(m_connection);
}

std::optional<QSize> EwmhHints::rootSize() const {
    const auto reply =
        takeReply(xcb_get_geometry_reply(m_connection, xcb_get_geometry(m_connection, m_root), nullptr));
    if (!reply)
        return std::nullopt;
    return QSize(reply->width, reply->height);
}

xcb_get_property_cookie_t EwmhHints::ask(xcb_window_t window, Atom property, xcb_atom_t type) const {
    return xcb_get_property(m_connection, 0, window, m_atoms[property], type, 0, maximumPropertyWords);
}

std::vector<std::uint32_t> EwmhHints::answer(xcb_get_property_cookie_t cookie) const {
    const auto reply = takeReply(xcb_get_property_reply(m_connection, cookie, nullptr));
    if (!reply || reply->format != 32)
        return {};
    const auto* values = static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get()));
    return {values, values + reply->value_len};
}

std::vector<TopDock> EwmhHints::otherTopDocks(xcb_window_t own) const {
    struct Question {
        xcb_window_t window;
        xcb_get_property_cookie_t partial;
        xcb_get_property_cookie_t whole;
        xcb_get_geometry_cookie_t size;
        xcb_translate_coordinates_cookie_t position;
    };
    std::vector<Question> questions;
    for (const xcb_window_t window : answer(ask(m_root, clientList, XCB_ATOM_WINDOW))) {
        if (window != own)
            questions.push_back({.window = window,
                                 .partial = ask(window, strutPartial, XCB_ATOM_CARDINAL),
                                 .whole = ask(window, strut, XCB_ATOM_CARDINAL),
                                 .size = xcb_get_geometry(m_connection, window),
                                 .position = xcb_translate_coordinates(m_connection, window, m_root, 0, 0)});
    }

    std::vector<TopDock> docks;
    for (const Question& question : questions) {
        const TopStrut reserved = topStrut(answer(question.partial), answer(question.whole));
        const auto size = takeReply(xcb_get_geometry_reply(m_connection, question.size, nullptr));
        const auto position =
            takeReply(xcb_translate_coordinates_reply(m_connection, question.position, nullptr));
        if (reserved.height > 0 && size && position)
            docks.push_back({QRect(position->dst_x, position->dst_y, size->width, size->height), reserved});
    }
    return docks;
}

bool EwmhHints::isLayoutChange(const xcb_generic_event_t& event) const {
    constexpr std::uint8_t sentByClient = 0x80;
    if ((event.response_type & ~sentByClient) != XCB_PROPERTY_NOTIFY)
        return false;
    const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(event);
    return change.window == m_root &&
           (change.atom == m_atoms[clientList] || change.atom == m_atoms[workArea] ||
            change.atom == m_atoms[supportingWindowManager]);
}

} // namespace orvelle
