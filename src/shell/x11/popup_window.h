#pragma once

#include "shell/painted/popup.h"
#include "shell/painted/popup_events.h"
#include "shell/x11/desktop_cover.h"
#include "shell/x11/x11_input.h"

namespace orvelle {

/// Opens a window as a popup. Its corners are rounded, and it fades in and out where the desktop composes its
/// windows. Main thread only.
class PopupWindow final : public Popup {
    Q_OBJECT

public:
    /// The window must outlive the object and must not have been shown. A window with transparency paints its
    /// corners itself where the desktop composes its windows; else they are cut off.
    explicit PopupWindow(QWindow& window);

    void show(QScreen& screen, const QRect& geometry, const QRectF& spared) override;
    void close() override;
    [[nodiscard]] bool isShown() const override { return m_presses != nullptr; }

private:
    void dismiss();
    void pressed();
    void keepPlace();
    void setOpacity(double opacity);
    [[nodiscard]] bool paintsItsCorners() const;

    QWindow& m_window;
    WindowFade m_fade;
    PopupEvents m_events;
    QRectF m_spared;
    QPoint m_place;          ///< where the window was asked to open, in points of the desktop
    bool m_wasMoved = false; ///< back to its place, since it opened
    std::unique_ptr<PointerPresses> m_presses; ///< exists while the window is shown
    std::unique_ptr<DesktopCover> m_cover;     ///< the same, where it is needed
};

} // namespace orvelle
