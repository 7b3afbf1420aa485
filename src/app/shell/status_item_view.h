#pragma once

#include "charts/bar_look.h"

#include <QList>
#include <QPainter>
#include <QString>

namespace orvelle {

/// The bars of a picture that ease to another length when the picture is replaced.
struct EasedBars {
    QList<BarLook> looks = {}; ///< in the same order in every picture of one kind
    double fullLength = 0;     ///< of a bar at ratio 1, points
};

/// What one status item shows: a picture of the present values, without state of its own.
class StatusItemView {
public:
    virtual ~StatusItemView() = default;

    /// Paints within `bounds`, in points; 22 points high in the menu bar.
    virtual void paint(QPainter& painter, const QRectF& bounds) const = 0;

    /// The bars at the present values; none in a picture that does not ease.
    [[nodiscard]] virtual EasedBars bars() const { return {}; }

    /// Paints the picture with `shown` for its bars, which are in the middle of a change.
    virtual void paintWithBars(QPainter& painter, const QRectF& bounds,
                               const QList<BarLook>& /*shown*/) const {
        paint(painter, bounds);
    }

    /// What the item is about, for assistive technology: a name that does not change, for example "CPU".
    [[nodiscard]] virtual QString accessibleName() const = 0;

    /// The values in words for assistive technology, for example "CPU 12%".
    [[nodiscard]] virtual QString accessibleText() const = 0;
};

} // namespace orvelle
