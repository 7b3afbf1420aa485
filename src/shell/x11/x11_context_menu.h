#pragma once

#include "shell/painted/bar_window.h"
#include "shell/painted/menu_window.h"
#include "shell/x11/popup_window.h"

namespace orvelle {

/// The menu of an item in the program's own bar.
class X11ContextMenu final : public ContextMenu {
public:
    /// `dismissed` is called when Escape is about to close the menu.
    X11ContextMenu(const BarWindow& bar, std::function<void()> dismissed);

    void show(const StatusItem& item, std::vector<MenuEntry> entries) override;
    void close() override { m_popup.close(); }

private:
    void choose(std::size_t index);

    const BarWindow& m_bar;
    const StatusItem* m_item = nullptr; ///< under which the menu is shown
    MenuWindow m_window;
    PopupWindow m_popup{m_window};
};

} // namespace orvelle
