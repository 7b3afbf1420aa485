#pragma once

#include "shell/painted/popup.h"
#include "shell/painted/popup_events.h"
#include "shell/wayland/layer_role.h"
#include "shell/wayland/outside_presses.h"

namespace orvelle {

/// Opens a window as a popup on Wayland. It opens and closes at once, because Qt cannot fade a window there,
/// and paints its corners itself. The press that closes it does not reach what was clicked, except for the
/// bar's items. Main thread only.
class LayerPopup final : public Popup {
    Q_OBJECT

public:
    /// All must outlive the object. The window must not have been shown. `ownBarHeight` as in LayerRole.
    LayerPopup(LayerShell& shell, QWindow& window, int ownBarHeight, LayerKeyboard keyboard,
               MakeOutsidePresses makeOutsidePresses);

    void show(QScreen& screen, const QRect& geometry, const QRectF& spared) override;
    void close() override;
    [[nodiscard]] bool isShown() const override { return m_presses != nullptr; }

private:
    void dismiss();

    LayerRole m_role;
    PopupEvents m_events;
    MakeOutsidePresses m_makeOutsidePresses;
    std::unique_ptr<OutsidePresses> m_presses; ///< exists while the window is shown
};

} // namespace orvelle
