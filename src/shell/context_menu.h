#pragma once

#include "shell/status_item.h"

#include <vector>

namespace orvelle {

/// One line of a menu; without a title it is a separator.
struct MenuEntry {
    QString title;
    /// The key that chooses the entry together with the desktop's key for commands, as a small letter or a
    /// sign; empty for none.
    QString keyEquivalent;
    std::function<void()> action;
};

/// The menu that opens under a status item. It closes by itself when an entry is chosen, with Escape, and
/// when the user clicks elsewhere, but not by a press on the item that it belongs to: what that click does is
/// for the item's handler to say. Main thread only.
class ContextMenu {
public:
    virtual ~ContextMenu() = default;

    /// Opens with these entries under an item of the bar that made the menu, in place of what it shows. Where
    /// it is shown under that item already it closes instead.
    virtual void show(const StatusItem& item, std::vector<MenuEntry> entries) = 0;
    virtual void close() = 0;
};

} // namespace orvelle
