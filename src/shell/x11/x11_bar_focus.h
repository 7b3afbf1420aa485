#pragma once

#include "shell/painted/bar_focus.h"
#include "shell/x11/x11_input.h"

namespace orvelle {

/// Moves the keyboard of an X server to the bar's own window and back. Main thread only.
class X11BarFocus final : public BarFocus {
    Q_OBJECT

public:
    explicit X11BarFocus(AccessibleBar& window)
        : BarFocus(window) {}

private:
    [[nodiscard]] bool canTake() const override { return window().isExposed(); }
    void rememberKeyboard() override { m_focus.remember(window().winId()); }
    void takeKeyboard() override { m_focus.take(window().winId()); }
    void takeKeyboardOver() override { m_focus.takeOver(window().winId()); }
    void giveKeyboardBack() override { m_focus.giveBack(); }
    [[nodiscard]] bool hasKeyboard() const override { return InputFocus::isIn(window().winId()); }

    InputFocus m_focus;
};

} // namespace orvelle
