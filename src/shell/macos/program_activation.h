#pragma once

#include <QTimer>

#include <set>

namespace orvelle {

/// Makes this program the active one while something of it is open, because the system gives keys and
/// hovering to no other. When nothing is open any more the program that was active before goes on. Main
/// thread only.
class ProgramActivation {
public:
    ProgramActivation();

    /// Before this window is shown. The system may take its time, or refuse.
    void begin(const void* window);
    /// This menu, which gets keys from the system anyway, is about to open: an active program stays active.
    void keep(const void* menu);
    /// After the window or the menu has closed. Nothing happens when it was not open.
    void end(const void* closed);

private:
    void giveBack() const;

    std::set<const void*> m_open;
    QTimer m_delay; ///< runs while nothing is open, but the user may be opening the next thing
};

} // namespace orvelle
