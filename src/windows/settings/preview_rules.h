#pragma once

#include "settings/styles.h"

#include <QColor>
#include <QList>
#include <QPainterPath>
#include <QPen>
#include <QRectF>

/// The geometry of the small pictures that show a choice before it is made. They show fixed samples. Lengths
/// are in points.
namespace orvelle {

/// Seven samples from the left to the right edge, in the way of a sparkline where the style is smooth.
[[nodiscard]] QPainterPath previewLine(GraphLineStyle style, const QSizeF& canvas);

[[nodiscard]] QPen previewLinePen(GraphLineStyle style, const QColor& color);

/// Five bars in the middle of the frame's bottom edge, from left to right.
[[nodiscard]] QList<QRectF> previewBars(BarChartStyle style, const QSizeF& frame);

/// The outline of a bar that fills `bar`.
[[nodiscard]] QPainterPath previewBarShape(BarChartStyle style, const QRectF& bar);

inline constexpr double previewRingSide = 22;
inline constexpr double previewRingStroke = 3;
/// How much of the ring is filled.
inline constexpr double previewRingFraction = 0.7;

/// What of a ring is painted in the track's colour, and over it in the module's.
struct PreviewRing {
    QPainterPath track;
    QPainterPath progress;
    bool isFilled = false; ///< the paths are areas; else they are lines, `previewRingStroke` wide
};

/// A ring, or what a gauge has of one, `previewRingSide` wide with its stroke. What is painted stands in the
/// middle of the frame, also where it is only half of a circle.
[[nodiscard]] PreviewRing previewRing(RingChartStyle style, const QSizeF& frame);

/// What the card of a theme shows inside its padding: bars in the modules' colours, and under them a dot for
/// each of some other colours.
struct ThemeCardLayout {
    QList<QRectF> bars; ///< six
    QList<QRectF> dots; ///< five
};
[[nodiscard]] ThemeCardLayout themeCardLayout(const QRectF& content);

/// The widths of as many equal columns as fit a width and there are cards for, each within its limits. They
/// are whole, so one may be a point wider than another; with the spacing they fill the width.
[[nodiscard]] QList<double> themeGridColumns(double availableWidth, int cardCount);

/// What the cards fill when they stand in one row and are at their widest.
[[nodiscard]] double largestThemeGridWidth(int cardCount);

inline constexpr double themeGridSpacing = 10;

} // namespace orvelle
