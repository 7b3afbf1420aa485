#pragma once

#include <QColor>
#include <QFont>
#include <QImage>
#include <QPainter>
#include <QStringView>

/// The program's icons by name. On macOS they are the system's symbols; elsewhere outlines of 16 x 16 units
/// that are embedded in the program, by the table in symbols.cmake. A symbol at font size S fills a square
/// of 1.2 S points, which is the height of a line of text of that size. Main thread only.
namespace orvelle {

/// Side of the square that a symbol occupies beside text of `fontSize` points.
[[nodiscard]] constexpr double symbolExtent(double fontSize) {
    return 1.2 * fontSize;
}

/// Whether there is a picture of this name. Asking to draw another name draws nothing and logs a warning.
[[nodiscard]] bool isKnownSymbol(QStringView name);

/// The symbol as an image of whole device pixels with `devicePixelRatio` set, in `color` throughout and
/// transparent elsewhere. A weight above Normal thickens the outline. The last images are kept, so that
/// asking again costs a look-up. Null when the name is not known or the size or the ratio is not above 0.
[[nodiscard]] QImage symbolImage(QStringView name, double fontSize, const QColor& color,
                                 double devicePixelRatio, QFont::Weight weight = QFont::Normal);

/// Paints the symbol centred on `center`, moved to the nearest whole device pixel so that it stays crisp.
void paintSymbol(QPainter& painter, QStringView name, const QPointF& center, double fontSize,
                 const QColor& color, QFont::Weight weight = QFont::Normal);

} // namespace orvelle
