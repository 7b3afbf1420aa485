#pragma once

#include "menu_bar/menu_bar_item.h"

namespace orvelle {

class MemoryMonitor;

/// The memory module's item: the used share as text, bar or dots, or the pressure history.
class MemoryMenuBarItem : public MenuBarItem<ModuleId::memory, MemoryMonitor> {
public:
    using MenuBarItem::MenuBarItem;

    /// The current values in the user's style.
    [[nodiscard]] ItemScene body() const;
    /// The current values in a square.
    [[nodiscard]] IconScene icon() const;

private:
    [[nodiscard]] SceneNode picture() const;
    [[nodiscard]] QString accessibleText() const;
};

} // namespace orvelle
