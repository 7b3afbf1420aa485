#pragma once

#include <QColor>
#include <QFont>
#include <QIcon>
#include <QImage>
#include <QPainter>
#include <QStringView>

#include <optional>

/// The program's symbols by name, and its icon. On macOS the system provides the symbols; elsewhere they are
/// outlines of 16 x 16 units, embedded according to the table in symbols.cmake. A symbol at font size S is
/// 1.2 S points high, as a line of text of that size, and as wide as its own proportions make it; the
/// embedded ones are square. Main thread only.
namespace orvelle {

/// The size of a symbol beside text of `fontSize` points, in points. An unknown one is square.
[[nodiscard]] QSizeF symbolSize(QStringView name, double fontSize, QFont::Weight weight = QFont::Normal);

/// The symbol in whole device pixels with `devicePixelRatio` set, in `color` where it is drawn and
/// transparent elsewhere. A weight above Normal thickens the outline. Recent images are cached. Null, with a
/// warning, for an unknown name; null when the size or the ratio is not above 0.
[[nodiscard]] QImage symbolImage(QStringView name, double fontSize, const QColor& color,
                                 double devicePixelRatio, QFont::Weight weight = QFont::Normal);

/// Paints the symbol centred on `center`, snapped to a whole device pixel so that it stays crisp.
void paintSymbol(QPainter& painter, QStringView name, const QPointF& center, double fontSize,
                 const QColor& color, QFont::Weight weight = QFont::Normal);

/// The program's icon in the sizes that window managers ask for. Each call renders it anew. Needs a
/// QGuiApplication.
[[nodiscard]] QIcon programIcon();

// The build chooses the file that implements these: system_symbols.mm or embedded_symbols.cpp.

/// Whether a symbol has this name.
[[nodiscard]] bool isKnownSymbol(QStringView name);

/// The width of the symbol where it is this high, in the same unit. Nothing for an unknown name.
[[nodiscard]] std::optional<double> symbolWidth(QStringView name, double height, QFont::Weight weight);

/// The symbol in a picture of this height in pixels and of its own width, premultiplied: opaque in any colour
/// where it is drawn, and transparent elsewhere. Null for an unknown name. `height` is at least 1.
[[nodiscard]] QImage rasterizeSymbol(QStringView name, int height, QFont::Weight weight);

} // namespace orvelle
