#pragma once

#include <QPainter>
#include <QString>

namespace orvelle {

/// What one status item shows: a picture of the present values, without state of its own.
class StatusItemView {
public:
    virtual ~StatusItemView() = default;

    /// Paints within `bounds`, in points; 22 points high in the menu bar.
    virtual void paint(QPainter& painter, const QRectF& bounds) const = 0;

    /// The values in words for assistive technology, for example "CPU 12%".
    [[nodiscard]] virtual QString accessibleText() const = 0;
};

} // namespace orvelle
