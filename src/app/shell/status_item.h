#pragma once

#include "app/shell/status_item_view.h"

#include <functional>
#include <memory>

namespace orvelle {

/// The button of a mouse that a click is made with; others are ignored.
enum class ClickButton { left, right };

/// One entry of the desktop's status bar: a fixed length, filled with a picture. The bar owns it.
class StatusItem {
public:
    virtual ~StatusItem() = default;

    /// The module key that the item was created with.
    [[nodiscard]] virtual const QString& identifier() const = 0;

    /// Width in points; it never follows the content.
    [[nodiscard]] virtual double length() const = 0;

    /// Replaces the view; this item alone is repainted, and only when it looks different from before.
    virtual void setView(std::shared_ptr<const StatusItemView> view) = 0;

    /// Called when a button that was pressed on the item is let go on it. The handler may remove the item.
    virtual void setClickHandler(std::function<void(ClickButton)> handler) = 0;
};

} // namespace orvelle
