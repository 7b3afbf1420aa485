#pragma once

#include "shell/x11/bar_geometry.h"

#include <xcb/xcb_ewmh.h>

#include <memory>

namespace orvelle {

/// The conversation with the window manager by the Extended Window Manager Hints. Borrows Qt's connection to
/// the X server. Main thread only.
class EwmhHints {
public:
    /// The only instance; null off X11 and when the server does not answer. Needs the application object.
    [[nodiscard]] static const EwmhHints* shared();

    /// Declares the window a dock that is present on every desktop and in no task list. To be called while
    /// the window is not shown, each time before it is: the window manager drops these properties when a
    /// window is hidden.
    void declareDock(xcb_window_t window) const;

    /// Sets or, with nothing, removes the space that the window reserves, in pixels of the root window.
    void setStrut(xcb_window_t window, const std::optional<TopStrut>& strut) const;

    /// The size of the root window in pixels; nothing when the server does not answer.
    [[nodiscard]] std::optional<QSize> rootSize() const;

    /// The docks other than `own` that reserve space at the top, as far as a window manager lists them.
    [[nodiscard]] std::vector<TopDock> otherTopDocks(xcb_window_t own) const;

    /// The work areas of the desktop that the user is on: of each screen where the window manager announces
    /// them, else of all screens together. Empty without a window manager.
    [[nodiscard]] std::vector<QRect> workAreas() const;

    /// Whether the event says that another window manager has taken over, or that it counts in other units.
    [[nodiscard]] bool isManagerChange(const xcb_generic_event_t& event) const;

    /// Whether the event says that windows came or went, or that reserved space changed.
    [[nodiscard]] bool isLayoutChange(const xcb_generic_event_t& event) const;

    /// Asks the window manager to move a shown window to the desktop that the user is on. Nothing happens
    /// where it has no desktops.
    void moveToPresentDesktop(xcb_window_t window) const;

    /// Whether a program composes the windows, so that they can be translucent.
    [[nodiscard]] bool isComposing() const;

private:
    struct Deleter {
        void operator()(xcb_ewmh_connection_t* connection) const;
    };
    using Connection = std::unique_ptr<xcb_ewmh_connection_t, Deleter>;

    explicit EwmhHints(Connection connection);
    /// Null when the server does not answer.
    [[nodiscard]] static Connection connect(xcb_connection_t* connection);
    [[nodiscard]] std::vector<xcb_window_t> clients() const;
    [[nodiscard]] bool hasWindowManager() const;
    /// The numbers in a property of the root window; none when it has another type.
    [[nodiscard]] std::vector<std::uint32_t> rootNumbers(xcb_atom_t property) const;
    [[nodiscard]] std::optional<QSize> desktopSize() const;

    Connection m_ewmh;
    int m_screen;
    xcb_window_t m_root;
};

} // namespace orvelle
