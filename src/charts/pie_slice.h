#pragma once

#include <QPainterPath>
#include <QRectF>

namespace orvelle {

/// A wedge of a disc.
struct PieSlice {
    double startAngle = 0; ///< degrees clockwise from three o'clock
    double endAngle = 0;   ///< degrees clockwise from three o'clock

    /// The wedge of the largest disc around the middle of `rectangle`. An end before the start goes on around
    /// the circle; a full turn or more is the whole disc.
    [[nodiscard]] QPainterPath path(const QRectF& rectangle) const;

    bool operator==(const PieSlice&) const = default;
};

} // namespace orvelle
