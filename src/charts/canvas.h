#pragma once

#include <QFont>
#include <QPainter>
#include <QRectF>
#include <QString>

/// What charts share when they paint. Lengths are in points.
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

/// Whether both sides are above 0 and no larger than a screen could show. The limit keeps coordinates within
/// the painter's range and loops over a side short.
[[nodiscard]] bool isPaintable(const QSizeF& size);

/// The rectangle of `size` whose centre is that of `bounds`.
[[nodiscard]] QRectF centred(const QSizeF& size, const QRectF& bounds);

/// Height of one line of text.
[[nodiscard]] double lineHeight(const QFont& font);

/// Writes one line of text in the middle of `line`, with an ellipsis where it is too long.
void drawLabel(QPainter& painter, const QRectF& line, const QString& text, const QFont& font,
               const QColor& color);

} // namespace orvelle
