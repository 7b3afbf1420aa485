#pragma once

#include <QPainter>
#include <QRectF>

namespace orvelle {

/// A clipped drawing surface with its origin at the top-left corner of `frame`. Restores the painter when it
/// goes out of scope.
class Canvas {
public:
    Canvas(QPainter& painter, const QRectF& frame);
    ~Canvas();
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

private:
    QPainter& m_painter;
};

/// Whether anything can be drawn in this size: both sides are above 0 and no larger than a screen could show.
/// The limit keeps coordinates within what the painter can count and loops over a side short.
[[nodiscard]] bool isPaintable(const QSizeF& size);

/// The rectangle of `size` whose centre is that of `bounds`.
[[nodiscard]] QRectF centred(const QSizeF& size, const QRectF& bounds);

} // namespace orvelle
