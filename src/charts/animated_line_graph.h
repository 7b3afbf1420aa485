#pragma once

#include "charts/line_mask.h"
#include "charts/picture.h"
#include "settings/styles.h"

#include <QColor>
#include <QList>
#include <QPainter>
#include <QRectF>

#include <array>
#include <optional>

/// The graph of a metric's history in a detail panel. Lengths are in points.
namespace orvelle {

struct AnimatedLineGraph {
    QList<double> data = {};  ///< oldest first, drawn left to right; nothing is drawn for fewer than two
    double maxValue = 1;      ///< value at the top edge; larger samples are drawn there too
    QColor lineColor = {};    ///< of line, fill and glow
    bool fillGradient = true; ///< whether there is a fill at all
    bool showGlow = true;
    double height = 60;
    double lineWidth = 1.5;
    GraphLineStyle lineStyle = GraphLineStyle::smooth;
    GraphFillStyle fillStyle = GraphFillStyle::gradient;
    GlowIntensity glowIntensity = GlowIntensity::medium;
    QColor gridColor = Qt::transparent; ///< of the horizontal lines over the graph
    QList<double> animatedData = {};    ///< the series that is drawn; `data` is drawn while it is empty

    /// The samples that are drawn.
    [[nodiscard]] const QList<double>& series() const { return animatedData.isEmpty() ? data : animatedData; }

    /// Paints a canvas as wide as `bounds` and `height` high, centred in it, and nothing outside the canvas:
    /// negative samples disappear below its bottom edge.
    void paint(QPainter& painter, const QRectF& bounds,
               PictureCache<AnimatedLineGraph>* cache = nullptr) const;

    bool operator==(const AnimatedLineGraph&) const = default;
};

/// The value at the top edge: `maxValue`, but at least 0.001, so that the division stays defined.
[[nodiscard]] double lineGraphScale(double maxValue);

/// The dashes of a style; nothing for an unbroken line.
[[nodiscard]] std::optional<DashPattern> lineDashes(GraphLineStyle style);

/// The three grid lines stand at the quarters of the height.
[[nodiscard]] constexpr std::array<double, 3> gridLineHeights(double canvasHeight) {
    return {0.25 * canvasHeight, 0.5 * canvasHeight, 0.75 * canvasHeight};
}

} // namespace orvelle
