#pragma once

#include "shell/x11/x11_connection.h"

#include <QObject>
#include <QtGui/qwindowdefs.h>

namespace orvelle {

/// Reports every press of a mouse button on the desktop, also those for other programs, which still receive
/// them: it listens to the pointing devices and grabs nothing. Silent where the server lacks XInput. Main
/// thread only.
class PointerPresses : public QObject, private X11EventFilter {
    Q_OBJECT

public:
    PointerPresses();
    ~PointerPresses() override;

Q_SIGNALS:
    /// Turning a wheel is no press.
    void pressed();

private:
    void handleEvent(const xcb_generic_event_t& event) override;

    std::uint8_t m_extension = 0; ///< the opcode that the server gave XInput; 0 when it lacks it
};

/// Takes the keyboard of an X server for a window to which no window manager gives it, such as a dock, and
/// hands it back. Off X11 nothing happens. Main thread only.
class InputFocus {
public:
    /// Remembers which window has the keyboard, unless it is this one.
    void remember(WId window);
    /// Moves the keyboard to the window, which must be on the screen, and remembers which window had it.
    void take(WId window);
    /// Moves the keyboard to the window from another one of this program, to which it will not go back.
    void takeOver(WId window);
    /// Whether the window has the keyboard now, which its own events may report later.
    [[nodiscard]] static bool isIn(WId window);
    /// Moves it back; when that window has gone, to the one under the pointer.
    void giveBack();

private:
    std::uint32_t m_previous = 0; ///< an X window, or a constant of the server such as XCB_INPUT_FOCUS_NONE
};

} // namespace orvelle
