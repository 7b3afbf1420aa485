#pragma once

#include "shell/painted/bar_geometry.h"

#include <xcb/xcb.h>

#include <array>

namespace orvelle {

/// What the bar tells the window manager and what it asks of it, by the Extended Window Manager Hints.
/// Borrows Qt's connection to the X server. Main thread only.
class EwmhHints {
public:
    /// Asks the server for the root window that `window` belongs to and for the atoms.
    EwmhHints(xcb_connection_t* connection, xcb_window_t window);

    /// Declares the window a dock that is present on every desktop and in no task list. To be called while
    /// the window is not shown, each time before it is: the window manager drops these properties when a
    /// window is hidden.
    void declareDock(xcb_window_t window) const;

    /// Sets or, with nothing, removes the space that the window reserves.
    void setStrut(xcb_window_t window, const std::optional<TopStrut>& strut) const;

    /// The size of the root window in pixels; nothing when the server does not answer.
    [[nodiscard]] std::optional<QSize> rootSize() const;

    /// The docks other than `own` that reserve space at the top, as far as a window manager lists them.
    [[nodiscard]] std::vector<TopDock> otherTopDocks(xcb_window_t own) const;

    /// Whether the event tells that windows came or went, that reserved space changed, or that another window
    /// manager has taken over.
    [[nodiscard]] bool isLayoutChange(const xcb_generic_event_t& event) const;

private:
    enum Atom : std::size_t {
        windowType,
        windowTypeDock,
        state,
        stateSticky,
        stateSkipTaskbar,
        stateSkipPager,
        desktop,
        strut,
        strutPartial,
        clientList,
        workArea,
        supportingWindowManager,
        atomCount
    };

    [[nodiscard]] xcb_get_property_cookie_t ask(xcb_window_t window, Atom property, xcb_atom_t type) const;
    [[nodiscard]] std::vector<std::uint32_t> answer(xcb_get_property_cookie_t cookie) const;
    void set(xcb_window_t window, Atom property, xcb_atom_t type,
             const std::vector<std::uint32_t>& values) const;

    xcb_connection_t* m_connection;
    xcb_window_t m_root = XCB_WINDOW_NONE;
    std::array<xcb_atom_t, atomCount> m_atoms{};
};

} // namespace orvelle
