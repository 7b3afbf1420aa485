#pragma once

#include "shell/painted/bar_window.h"
#include "shell/painted/popup.h"

namespace orvelle {

/// The tabs above a panel of the tray: the items as in a menu bar, in a small window of their own, which
/// never takes the keyboard. Main thread only.
class TrayStrip {
public:
    /// `makePopup` makes the popup of the strip, which must leave the keyboard where it is. Without it there
    /// are never tabs.
    explicit TrayStrip(const MakePopup& makePopup);

    [[nodiscard]] Bar& bar() const { return m_bar; }
    /// The size at which every item fits; empty where there are no tabs, because there is no choice or no
    /// place for them.
    [[nodiscard]] QSize wantedSize() const;

    /// Marks the tab of this item; none when it is empty.
    void select(const QString& identifier);
    /// Shows the strip there, or moves it.
    void show(QScreen& screen, const QRect& geometry);
    void hide();
    [[nodiscard]] bool isShown() const { return m_popup != nullptr && m_popup->isShown(); }

private:
    BarWindow m_window;
    Bar& m_bar = m_window.bar();
    std::unique_ptr<Popup> m_popup;
    QRect m_geometry; ///< wanted last; not all desktops tell where a window is
};

} // namespace orvelle
