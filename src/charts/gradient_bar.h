#pragma once

#include <QColor>
#include <QPainter>
#include <QRectF>

namespace orvelle {

/// A lying bar on a track, which is filled from the left and grows stronger towards the end of its fill.
struct GradientBar {
    double fraction = 0;    ///< of the track that is filled
    QColor color = {};      ///< at the end of the fill
    QColor trackColor = {}; ///< of the whole width, below the fill

    /// Fills `bounds` in the middle of an animation; a fraction above 1 reaches out of them to the right, in
    /// proportion.
    void paint(QPainter& painter, const QRectF& bounds, double shownFraction) const;

    bool operator==(const GradientBar&) const = default;
};

} // namespace orvelle
