#pragma once

#include "settings/styles.h"

#include <QColor>
#include <QList>
#include <QPainterPath>
#include <QPen>
#include <QRectF>

/// The geometry of the small pictures that preview a choice, with fixed samples. Lengths are in points.
namespace orvelle {

/// Seven samples from the left to the right edge; a smooth one is drawn like a sparkline.
[[nodiscard]] QPainterPath previewLine(GraphLineStyle style, const QSizeF& canvas);

[[nodiscard]] QPen previewLinePen(GraphLineStyle style, const QColor& color);

/// Five bars on the bottom edge of the frame, centred, from left to right.
[[nodiscard]] QList<QRectF> previewBars(BarChartStyle style, const QSizeF& frame);

/// The outline of a bar.
[[nodiscard]] QPainterPath previewBarShape(BarChartStyle style, const QRectF& bar);

inline constexpr double previewRingSide = 22;
inline constexpr double previewRingStroke = 3;
/// The filled fraction of the ring.
inline constexpr double previewRingFraction = 0.7;

/// The paths of a ring: its track, and the filled fraction on top of it.
struct PreviewRing {
    QPainterPath track;
    QPainterPath progress;
    bool isFilled = false; ///< whether the paths are filled, or else stroked `previewRingStroke` wide
};

/// A ring or gauge, `previewRingSide` wide including its stroke. The visible part is centred in the frame,
/// even if it is only half a circle.
[[nodiscard]] PreviewRing previewRing(RingChartStyle style, const QSizeF& frame);

/// The content of a theme's card: a bar for each module's colour, and below them a dot for each of some other
/// colours.
struct ThemeCardLayout {
    QList<QRectF> bars; ///< six
    QList<QRectF> dots; ///< five
};
[[nodiscard]] ThemeCardLayout themeCardLayout(const QRectF& content);

} // namespace orvelle
