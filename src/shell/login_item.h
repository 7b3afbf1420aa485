#pragma once

namespace orvelle {

/// Whether the desktop starts the program when the user logs in. Main thread only.
class LoginItem {
public:
    virtual ~LoginItem() = default;

    /// What the desktop will really do at the next login.
    [[nodiscard]] virtual bool isEnabled() const = 0;
    /// Returns whether the desktop has taken it. Switched on where it is on, it is made to start the program
    /// from where it is now.
    [[nodiscard]] virtual bool setEnabled(bool enabled) = 0;
    /// Where it is on but would start a program that is gone, it is made to start this one.
    virtual void repair() = 0;
};

} // namespace orvelle
