#pragma once

#include "shell/painted/popup.h"
#include "shell/x11/x11_input.h"

namespace orvelle {

/// Makes a popup of a window. Its corners are rounded, and where the desktop composes its windows it appears
/// and disappears softly. Main thread only.
class PopupWindow final : public Popup {
    Q_OBJECT

public:
    /// The window must outlive the object and must not have been shown. Where it is partly transparent and
    /// the desktop composes its windows it paints its corners itself; else they are cut off.
    explicit PopupWindow(QWindow& window);

    void show(QScreen& screen, const QRect& geometry, const QRectF& spared) override;
    void close() override;
    [[nodiscard]] bool isShown() const override { return m_presses != nullptr; }

private:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void pressed();
    void activeChanged();
    [[nodiscard]] bool paintsItsCorners() const;

    QWindow& m_window;
    WindowFade m_fade;
    QRectF m_spared;
    bool m_wasActive = false;
    bool m_isPainted = false;
    std::unique_ptr<PointerPresses> m_presses; ///< exists while the window is shown
};

} // namespace orvelle
