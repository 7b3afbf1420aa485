#pragma once

#include "shell/macos/macos_status_item.h"
#include "shell/macos/status_item_target.h"
#include "shell/status_bar.h"

namespace orvelle {

/// The program's part of the system's menu bar.
class MacosStatusBar final : public StatusBar, private ClickListener {
public:
    MacosStatusBar();
    ~MacosStatusBar() override;

    /// Asks the system for one item more. Where it stands among the others is for the system, and for the
    /// user, who may move it.
    [[nodiscard]] StatusItem& addItem(const QString& identifier, double length) override;
    void removeItem(StatusItem& item) override;
    [[nodiscard]] std::unique_ptr<Popover> makePopover(PopoverContent makeContent) override;
    [[nodiscard]] std::unique_ptr<ContextMenu> makeContextMenu() override;

private:
    void clicked(const QString& identifier, ClickButton button) override;
    void itemPainted();

    Retained<StatusItemTarget*> m_target;
    std::vector<std::unique_ptr<MacosStatusItem>> m_items; ///< in the order in which they were added
    bool m_hasBeenPainted = false;
};

} // namespace orvelle
