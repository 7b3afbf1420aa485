#pragma once

#include "charts/bar_look.h"

#include <QList>
#include <QPainter>
#include <QString>

#include <functional>
#include <string>

namespace orvelle {

/// The bars of a picture that ease to another length when the values change.
struct EasedBars {
    QList<BarLook> looks = {}; ///< in the same order in every picture of one kind
    double fullLength = 0;     ///< of a bar at ratio 1, points
};

/// What a status item looks like at one moment.
struct ItemPicture {
    std::string key; ///< pictures with equal keys look the same, so that they need not be painted again
    /// Paints within the rectangle, in points; 22 points high in the menu bar. It holds what it paints, and
    /// outlives the view.
    std::function<void(QPainter&, const QRectF&)> paint;
};

/// What one status item shows: the present values in pictures and words, without state of its own.
class StatusItemView {
public:
    virtual ~StatusItemView() = default;

    /// The bars at the present values; none in a picture that does not ease.
    [[nodiscard]] virtual EasedBars bars() const { return {}; }

    /// The present values with `shown` for the bars, which may be in the middle of a change.
    [[nodiscard]] virtual ItemPicture picture(const QList<BarLook>& shown) const = 0;

    /// Paints the present values, see `ItemPicture::paint`.
    void paint(QPainter& painter, const QRectF& bounds) const {
        picture(bars().looks).paint(painter, bounds);
    }

    /// What the item is about, for assistive technology: a name that does not change, for example "CPU".
    [[nodiscard]] virtual QString accessibleName() const = 0;

    /// The values in words for assistive technology, for example "CPU 12%".
    [[nodiscard]] virtual QString accessibleText() const = 0;
};

} // namespace orvelle
