#pragma once

#include <QColor>
#include <QList>
#include <QPainter>
#include <QPainterPath>
#include <QPointF>
#include <QRectF>

#include <optional>

/// The small graphs of the menu bar. Lengths are in points.
namespace orvelle {

/// A line with a filled area that scales itself to its samples.
struct SparklineView {
    QList<double> data = {}; ///< oldest first; see `sparklineScale`
    double maxValue = 0;     ///< value drawn at full scale; 0 scales to the largest sample
    QColor lineColor = {};
    std::optional<QColor> fillColor = {}; ///< colour of the area; `lineColor` at opacity 0.2 when absent
    double lineWidth = 1;
    double width = 0;  ///< of the canvas
    double height = 0; ///< of the canvas

    /// Paints a canvas of `width` x `height`, centred in `bounds`, and nothing outside the canvas.
    void paint(QPainter& painter, const QRectF& bounds) const;

    bool operator==(const SparklineView&) const = default;
};

/// Two sparklines over one another, for the two directions of one module. Each has its own scale, so their
/// heights cannot be compared.
struct DualSparklineView {
    QList<double> topData = {};    ///< drawn in front
    QList<double> bottomData = {}; ///< drawn behind
    QColor topColor = {};
    QColor bottomColor = {};
    double width = 0;
    double height = 0;

    /// The two sparklines in the order in which they are painted: bottom, then top.
    [[nodiscard]] QList<SparklineView> layers() const;

    /// Paints a canvas of `width` x `height`, centred in `bounds`, and nothing outside the canvas.
    void paint(QPainter& painter, const QRectF& bounds) const;

    bool operator==(const DualSparklineView&) const = default;
};

/// A full-scale sample stands this far below the top edge.
inline constexpr double sparklineTopInset = 1.0;

/// The value drawn at full scale: `maxValue` when it is above 0, else the largest sample. Nothing when there
/// are fewer than two samples or none is above 0: then nothing is drawn.
[[nodiscard]] std::optional<double> sparklineScale(const QList<double>& data, double maxValue);

/// A line through the points that is level at every one of them; two points are joined straight.
/// Empty for fewer than two points.
[[nodiscard]] QPainterPath sparklinePath(const QList<QPointF>& points);

} // namespace orvelle
