#pragma once

#include "shell/status_item.h"

#include <QObject>
#include <QWindow>

#include <memory>
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
/// when the user clicks elsewhere. A press on its own item does not close it: the item's click handler
/// decides. Main thread only.
class ContextMenu {
public:
    virtual ~ContextMenu() = default;

    /// Opens with these entries under an item of the bar that made the menu; if it is open under another item
    /// it moves. If it is open under this item it closes instead.
    virtual void show(const StatusItem& item, std::vector<MenuEntry> entries) = 0;
    virtual void close() = 0;
};

/// A window that opens under a status item, with the keyboard in it. It closes by itself with Escape and when
/// the user clicks elsewhere. A press on its own item does not close it: the item's click handler decides.
/// Main thread only.
class Popover {
public:
    virtual ~Popover() = default;

    [[nodiscard]] virtual bool isShown() const = 0;
    /// Opens under an item of the bar that made the popover. Its content is made the first time.
    virtual void show(const StatusItem& item) = 0;
    virtual void close() = 0;
};

/// Makes the content of a popover, 320 x 500 points, with its corners rounded by this radius in points; null
/// when it cannot be made.
using PopoverContent = std::function<std::unique_ptr<QWindow>(double cornerRadius)>;

/// The strip of the desktop that holds the status items, flush right. Main thread only.
class StatusBar : public QObject {
    Q_OBJECT

public:
    /// Adds an item of `length` points at one end of those present. The bar owns it until it is removed.
    [[nodiscard]] virtual StatusItem& addItem(const QString& identifier, double length) = 0;

    /// Whether that is the left end. Else it is the right one.
    [[nodiscard]] virtual bool addsItemsOnTheLeft() const { return false; }

    /// Destroys the item; those to its left move right to close the gap. A bar without items shows nothing.
    virtual void removeItem(StatusItem& item) = 0;

    /// A popover, not shown yet, for the items of this bar, which must outlive it.
    [[nodiscard]] virtual std::unique_ptr<Popover> makePopover(PopoverContent makeContent) = 0;

    /// A menu, not shown yet, for the items of this bar, which must outlive it.
    [[nodiscard]] virtual std::unique_ptr<ContextMenu> makeContextMenu() = 0;

    /// Sets what the desktop's own menu of the items offers. Nothing happens on a desktop that asks for the
    /// menu with a click.
    virtual void setMenu(const std::vector<MenuEntry>& /*entries*/) {}

    /// Moves the keyboard to the items, so that keys choose one and open it. Nothing happens on a desktop
    /// that has a key of its own for that.
    virtual void takeKeyboard() {}

    /// To be called before a popover opens under this item without a click. The keyboard goes where it would
    /// go if a key had opened it: Escape brings it to the item, and then to the window that has it now.
    /// Nothing happens on a desktop that has a key of its own for the items.
    virtual void chooseItem(const StatusItem& /*item*/) {}

Q_SIGNALS:
    /// The items have been painted for the first time since the program started.
    void firstPainted();
};

} // namespace orvelle
