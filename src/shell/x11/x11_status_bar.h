#pragma once

#include "shell/painted/bar_window.h"
#include "shell/status_bar.h"
#include "shell/x11/bar_keyboard.h"
#include "shell/x11/bar_placement.h"
#include "shell/x11/x11_popover.h"

namespace orvelle {

/// A status bar of the program's own, since X11 desktops have none that holds items of any width.
class X11StatusBar final : public StatusBar {
    Q_OBJECT

public:
    X11StatusBar();

    [[nodiscard]] StatusItem& addItem(const QString& identifier, double length) override;
    void removeItem(StatusItem& item) override;
    [[nodiscard]] std::unique_ptr<Popover> makePopover(PopoverContent makeContent) override;
    [[nodiscard]] std::unique_ptr<ContextMenu> makeContextMenu() override;
    void takeKeyboard() override { m_keyboard.take(); }

private:
    BarWindow m_window;
    KeptPopovers m_keptPopovers;
    BarPlacement m_placement;
    BarKeyboard m_keyboard;
};

} // namespace orvelle
