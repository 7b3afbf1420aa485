#pragma once

namespace orvelle {

/// The settings in a window with a title bar, which remembers where it stood. Closed, it is only hidden. Main
/// thread only.
class SettingsWindow {
public:
    virtual ~SettingsWindow() = default;

    /// Opens the window, or brings it before the others, with the keyboard in it.
    virtual void bringForward() = 0;
};

} // namespace orvelle
