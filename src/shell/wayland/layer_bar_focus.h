#pragma once

#include "shell/painted/bar_focus.h"
#include "shell/wayland/layer_role.h"
#include "shell/wayland/outside_presses.h"

#include <QBackingStore>

namespace orvelle {

/// Gives the bar the keyboard on Wayland, where the strip itself has none: while keys choose items, the
/// window of the accessible bar is shown as one transparent point at the strip's corner. Main thread only.
class LayerBarFocus final : public BarFocus {
    Q_OBJECT

public:
    /// All must outlive the object. The window must not have been shown.
    LayerBarFocus(LayerShell& shell, AccessibleBar& window, MakeOutsidePresses makeOutsidePresses);

    /// To be called when another window of the program that wants the keyboard is on the screen. Some
    /// compositors leave the keyboard where it is until the bar gives it up.
    void yield() { giveKeyboardBack(); }

private:
    bool eventFilter(QObject* watched, QEvent* event) override;
    [[nodiscard]] bool canTake() const override { return window().bar().place().isOnScreen; }
    void takeKeyboard() override;
    void takeKeyboardOver() override { takeKeyboard(); }
    void giveKeyboardBack() override;
    [[nodiscard]] bool hasKeyboard() const override { return window().isActive(); }
    void keyboardLost() override { giveKeyboardBack(); }
    void paint();

    LayerRole m_role;
    QBackingStore m_picture;
    MakeOutsidePresses m_makeOutsidePresses;
    std::unique_ptr<OutsidePresses> m_presses; ///< exists while the window is shown
};

} // namespace orvelle
