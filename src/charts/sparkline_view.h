#pragma once

#include <QColor>
#include <QList>
#include <QPainter>
#include <QRectF>

#include <optional>

namespace orvelle {

/// A small line with a filled area that scales itself to its samples.
struct SparklineView {
    QList<double> data =
        {}; ///< oldest first; nothing is drawn for fewer than two samples or when none is above 0
    double maxValue = 0; ///< value drawn at full scale; 0 scales to the largest sample
    QColor lineColor = {};
    std::optional<QColor> fillColor = {}; ///< colour of the area; `lineColor` at opacity 0.2 when absent
    double lineWidth = 1;                 ///< points
    double width = 0;                     ///< of the canvas, points
    double height = 0;                    ///< of the canvas, points

    /// Paints a canvas of `width` x `height`, centred in `bounds`, and nothing outside the canvas.
    void paint(QPainter& painter, const QRectF& bounds) const;

    bool operator==(const SparklineView&) const = default;
};

/// Two sparklines over one another, for the two directions of one module. Each is scaled on its own, so the
/// two cannot be compared in height.
struct DualSparklineView {
    QList<double> topData = {};    ///< drawn in front
    QList<double> bottomData = {}; ///< drawn behind
    QColor topColor = {};
    QColor bottomColor = {};
    double width = 0;  ///< points
    double height = 0; ///< points

    /// The two sparklines in the order in which they are painted: bottom, then top.
    [[nodiscard]] QList<SparklineView> layers() const;

    /// Paints a canvas of `width` x `height`, centred in `bounds`, and nothing outside the canvas.
    void paint(QPainter& painter, const QRectF& bounds) const;

    bool operator==(const DualSparklineView&) const = default;
};

} // namespace orvelle
