#pragma once

#include "app/shell/status_item_view.h"

#include <memory>

namespace orvelle {

/// One entry of the desktop's status bar: a fixed length, filled with a picture. The bar owns it.
class StatusItem {
public:
    virtual ~StatusItem() = default;

    /// The module key that the item was created with.
    [[nodiscard]] virtual const QString& identifier() const = 0;

    /// Width in points; it never follows the content.
    [[nodiscard]] virtual double length() const = 0;

    /// Replaces the picture and repaints this item alone.
    virtual void setView(std::shared_ptr<const StatusItemView> view) = 0;
};

} // namespace orvelle
