#include "at_scale.h"
#include "charts/line_mask.h"

#include <QPainterPathStroker>

namespace orvelle {
namespace {

class LineMask : public AtScale {};

INSTANTIATE_TEST_SUITE_P(, LineMask, bothScales);

QPainterPath lineFrom(const QPointF& from, const QPointF& to) {
    QPainterPath path;
    path.moveTo(from);
    path.lineTo(to);
    return path;
}

TEST_P(LineMask, CoversWhatAFilledOutlineCovers) {
    const PixelGrid grid{.pixelsPerPoint = GetParam(), .phase = {0.25, 0.5}};
    for (const double width : {0.3, 0.75, 1.0, 1.5, 4.0}) {
        for (const QPointF end : {QPointF(30, 10), QPointF(30, 30), QPointF(10, 33), QPointF(24, 17.3)}) {
            const QPainterPath line = lineFrom({10, 10}, end);
            const Picture mask = lineMask(grid, {0, 0, 40, 40}, line, width);
            QPainterPathStroker stroker;
            stroker.setWidth(width);
            stroker.setCapStyle(Qt::RoundCap);
            const Picture outline =
                rasterize(grid, {0, 0, 40, 40}, QImage::Format_Alpha8, [&](QPainter& painter) {
                    painter.fillPath(stroker.createStroke(line), Qt::black);
                });
            const double expected = coveredArea(outline.image.convertToFormat(QImage::Format_ARGB32));
            EXPECT_NEAR(coveredArea(mask.image.convertToFormat(QImage::Format_ARGB32)), expected,
                        expected * 0.06 + 0.5);
        }
    }
}

TEST_P(LineMask, DoesNotAddUpWhereTheLineCrossesItself) {
    QPainterPath path = lineFrom({5, 20}, {35, 20});
    path.lineTo(5, 20);
    const PixelGrid grid{.pixelsPerPoint = GetParam(), .phase = {}};
    EXPECT_EQ(lineMask(grid, {0, 0, 40, 40}, path, 0.5).image,
              lineMask(grid, {0, 0, 40, 40}, lineFrom({5, 20}, {35, 20}), 0.5).image);
}

TEST_P(LineMask, CarriesDashesOverCorners) {
    QPainterPath path;
    path.moveTo(5, 5);
    path.lineTo(15, 5);
    path.lineTo(15, 35);
    const PixelGrid grid{.pixelsPerPoint = GetParam(), .phase = {}};
    const QImage image = lineMask(grid, {0, 0, 40, 40}, path, 1, DashPattern{6, 8}).image;
    const auto isInked = [&](double x, double y) { return image.constScanLine(pixels(y))[pixels(x)] > 0; };
    EXPECT_TRUE(isInked(8, 5));
    EXPECT_FALSE(isInked(14, 5));
    EXPECT_FALSE(isInked(15, 7)) << "the gap of 8 ends 4 points after the corner";
    EXPECT_TRUE(isInked(15, 12));
    EXPECT_FALSE(isInked(15, 18));
}

} // namespace
} // namespace orvelle
