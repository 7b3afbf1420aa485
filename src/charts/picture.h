#pragma once

#include <QImage>
#include <QPainter>
#include <QPoint>
#include <QPointF>
#include <QRectF>
#include <QTransform>

#include <functional>

namespace orvelle {

/// Where the pixels lie under a painter: its resolution, and where its origin falls within a pixel. Pictures
/// made for a grid are copied pixel by pixel, which is many times faster than scaling them.
struct PixelGrid {
    double pixelsPerPoint = 1; ///< in steps of a quarter, so that a chart that pulses keeps its pictures
    QPointF phase; ///< of the painter's origin within its pixel, 0 to 1; 0 when it is not only scaled

    /// The grid under the present coordinates of `painter`.
    [[nodiscard]] static PixelGrid under(const QPainter& painter);

    /// From the painter's points to pixels, counted from the one that holds the painter's origin.
    [[nodiscard]] QTransform toPixels() const;

    /// The pixels that `area` (points) touches. Empty when there are none, or more than any screen shows.
    [[nodiscard]] QRect covering(const QRectF& area) const;

    bool operator==(const PixelGrid&) const = default;
};

/// An image and its place on a grid.
struct Picture {
    QImage image;  ///< null when there is nothing to see
    QPoint offset; ///< of its top-left pixel from the one that holds the painter's origin
};

/// What `paint` draws within `area`, in the given format; transparent where it draws nothing.
[[nodiscard]] Picture rasterize(const PixelGrid& grid, const QRectF& area, QImage::Format format,
                                const std::function<void(QPainter&)>& paint);

/// Shows a picture made for the grid under `painter`.
void showPicture(QPainter& painter, const Picture& picture);

} // namespace orvelle
