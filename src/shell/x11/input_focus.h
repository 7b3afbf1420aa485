#pragma once

#include <QtGui/qwindowdefs.h>

#include <cstdint>

namespace orvelle {

/// The keyboard of an X server, taken for a window that window managers give it to no one for, such as a
/// dock's, and handed back. Off X11 nothing happens. Main thread only.
class InputFocus {
public:
    /// Moves the keyboard to the window, which must be on the screen, and remembers who had it.
    void take(WId window);
    /// Moves the keyboard to the window from another one of this program, to which it will not go back.
    void takeOver(WId window);
    /// Whether the window has the keyboard now, whatever the window's own events have told so far.
    [[nodiscard]] static bool isIn(WId window);
    /// Moves it back; when that window has gone, to the one under the pointer.
    void giveBack();

private:
    std::uint32_t m_previous = 0; ///< an X window, or what the server says in the place of one
};

} // namespace orvelle
