#pragma once

#include <QColor>
#include <QList>
#include <QPainter>
#include <QRectF>

namespace orvelle {

/// A ring divided into coloured segments by their share of the whole.
struct MultiSegmentRing {
    struct Segment {
        double value = 0; ///< share of the sum of all segments
        QColor color = {};
    };

    QList<Segment> segments = {}; ///< drawn in order, clockwise from twelve o'clock
    double lineWidth = 10;        ///< points
    double size = 90;             ///< width and height, points
    QColor trackColor = Qt::transparent;
    double animatedProgress =
        0; ///< 0 shows the track alone, 1 all segments; a host moves it once from 0 to 1

    /// Paints in the middle of `bounds`. The stroke reaches beyond the ring's square by half its width.
    void paint(QPainter& painter, const QRectF& bounds) const;
};

} // namespace orvelle
