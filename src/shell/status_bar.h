#pragma once

#include "shell/context_menu.h"
#include "shell/popover.h"

#include <QObject>
#include <QWindow>

#include <memory>

namespace orvelle {

/// Makes what a popover shows, 320 x 500 points, with its corners rounded by so many points; null when it
/// cannot be made.
using PopoverContent = std::function<std::unique_ptr<QWindow>(double cornerRadius)>;

/// The strip of the desktop that holds the status items, flush right. Main thread only.
class StatusBar : public QObject {
    Q_OBJECT

public:
    /// Appends an item of `length` points to the right of those present. The bar owns it until it is removed.
    [[nodiscard]] virtual StatusItem& addItem(const QString& identifier, double length) = 0;

    /// Destroys the item; those to its left move right to close the gap. A bar without items shows nothing.
    virtual void removeItem(StatusItem& item) = 0;

    /// A popover, not shown yet, for the items of this bar, which must outlive it.
    [[nodiscard]] virtual std::unique_ptr<Popover> makePopover(PopoverContent makeContent) = 0;

    /// A menu, not shown yet, for the items of this bar, which must outlive it.
    [[nodiscard]] virtual std::unique_ptr<ContextMenu> makeContextMenu() = 0;

    /// Moves the keyboard to the items, so that keys choose one and open it. Nothing happens on a desktop
    /// that has a key of its own for that.
    virtual void takeKeyboard() {}

Q_SIGNALS:
    /// The items have been painted for the first time since the program started.
    void firstPainted();
};

} // namespace orvelle
