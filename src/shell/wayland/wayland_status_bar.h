#pragma once

#include "shell/painted/bar_popups.h"
#include "shell/wayland/layer_bar_focus.h"
#include "shell/wayland/wayland_strip.h"

namespace orvelle {

/// The strip on a Wayland desktop with its popovers and menu. Main thread only.
class WaylandStatusBar final : public StatusBar {
    Q_OBJECT

public:
    /// The shell must outlive the object.
    WaylandStatusBar(LayerShell& shell, std::unique_ptr<WaylandConnection> connection);

    [[nodiscard]] StatusItem& addItem(const QString& identifier, double length) override {
        return m_bar.addItem(identifier, length);
    }
    void removeItem(StatusItem& item) override { m_bar.removeItem(item); }
    [[nodiscard]] std::unique_ptr<Popover> makePopover(PopoverContent makeContent) override;
    [[nodiscard]] std::unique_ptr<ContextMenu> makeContextMenu() override;
    void takeKeyboard() override { m_focus.take(); }
    void chooseItem(const StatusItem& item) override { m_focus.choose(item); }

    /// Opens a window below the bar, or, while that is empty, in the upper corner that all bars leave free.
    /// The window must outlive the result and must not have been shown.
    [[nodiscard]] std::unique_ptr<Popup> makePopup(QWindow& window);
    /// The same for a window that leaves the keyboard where it is, and closes only when it is told to.
    [[nodiscard]] std::unique_ptr<Popup> makePassivePopup(QWindow& window);

Q_SIGNALS:
    /// The compositor has ended or has refused a request.
    void lost(const QString& reason);
    /// Another window of the program is about to open.
    void closePopups();

private:
    [[nodiscard]] int height() const { return m_bar.isEmpty() ? 0 : barHeightPoints; }

    LayerShell& m_shell;
    WaylandStrip m_strip;
    Bar& m_bar = m_strip.bar();
    KeptPopovers m_keptPopovers;
    MakeOutsidePresses m_makeOutsidePresses;
    LayerBarFocus m_focus;
};

} // namespace orvelle
