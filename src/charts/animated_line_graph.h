#pragma once

#include "charts/picture.h"
#include "settings/styles.h"

#include <QColor>
#include <QList>
#include <QPainter>
#include <QRectF>

namespace orvelle {

/// The large graph of a metric's history in a detail panel.
struct AnimatedLineGraph {
    QList<double> data = {};  ///< oldest first, drawn left to right; nothing is drawn for fewer than two
    double maxValue = 1;      ///< value drawn at the top edge; larger samples are drawn there too
    QColor lineColor = {};    ///< of line, fill and glow
    bool fillGradient = true; ///< whether there is a fill at all
    bool showGlow = true;     ///< whether there is a blurred glow under the line
    double height = 60;       ///< points
    double lineWidth = 1.5;   ///< points
    GraphLineStyle lineStyle = GraphLineStyle::smooth;
    GraphFillStyle fillStyle = GraphFillStyle::gradient;
    GlowIntensity glowIntensity = GlowIntensity::medium;
    QColor gridColor = Qt::transparent; ///< of the three horizontal lines over the graph
    QList<double> animatedData = {};    ///< the series that is drawn; `data` is drawn while it is empty

    /// The samples that are drawn.
    [[nodiscard]] const QList<double>& series() const { return animatedData.isEmpty() ? data : animatedData; }

    /// Paints a canvas as wide as `bounds` and `height` points high, centred in it, and nothing outside the
    /// canvas: negative samples disappear below its bottom edge.
    void paint(QPainter& painter, const QRectF& bounds,
               PictureCache<AnimatedLineGraph>* cache = nullptr) const;

    bool operator==(const AnimatedLineGraph&) const = default;
};

} // namespace orvelle
