#pragma once

#include "shell/status_item.h"

namespace orvelle {

/// A window that opens under a status item, with the keyboard in it. It closes by itself with Escape and when
/// the user clicks elsewhere, but not by a press on the item that it belongs to: what that click does is for
/// the item's handler to say. Main thread only.
class Popover {
public:
    virtual ~Popover() = default;

    [[nodiscard]] virtual bool isShown() const = 0;
    /// Opens under an item of the bar that made the popover. Its content is made the first time.
    virtual void show(const StatusItem& item) = 0;
    virtual void close() = 0;
};

} // namespace orvelle
