#include "at_scale.h"
#include "charts/line_mask.h"
#include "charts/picture_cache.h"

#include <QPainterPathStroker>

#include <limits>

namespace orvelle {
namespace {

void fillSquare(QPainter& painter) {
    painter.fillRect(QRectF(2, 2, 6, 6), Qt::red);
}

class Pictures : public AtScale {
protected:
    [[nodiscard]] QImage direct(const QTransform& transform) const {
        return painted({40, 40}, [&](QPainter& painter) {
            painter.setRenderHint(QPainter::Antialiasing);
            painter.setTransform(transform, true);
            fillSquare(painter);
        });
    }

    [[nodiscard]] QImage kept(PictureCache<int>& cache, const QTransform& transform) const {
        return painted({40, 40}, [&](QPainter& painter) {
            painter.setTransform(transform, true);
            cache.show(painter, 1, {0, 0, 10, 10}, fillSquare);
        });
    }
};

INSTANTIATE_TEST_SUITE_P(, Pictures, bothScales);

TEST_P(Pictures, AreExactWhereverTheyAreMoved) {
    for (const QPointF offset : {QPointF(0, 0), QPointF(5, 7), QPointF(5.3, 7.8), QPointF(-1.25, 0.5)}) {
        PictureCache<int> cache;
        const QTransform moved = QTransform::fromTranslate(offset.x(), offset.y());
        EXPECT_LE(largestDifference(kept(cache, moved), direct(moved)), 1);
    }
}

TEST_P(Pictures, AreDrawnForTheResolutionOfAScaledPainter) {
    PictureCache<int> cache;
    const QTransform doubled = QTransform::fromScale(2, 2);
    EXPECT_LE(largestDifference(kept(cache, doubled), direct(doubled)), 1);
}

TEST_P(Pictures, FollowAPainterThatIsScaledALittleOrTurned) {
    for (const QTransform& transform :
         {QTransform::fromScale(1.03, 1.03), QTransform().translate(20, 5).rotate(30)}) {
        PictureCache<int> cache;
        const QImage image = kept(cache, transform);
        EXPECT_NEAR(coveredArea(image), coveredArea(direct(transform)), coveredArea(image) * 0.03);
        EXPECT_TRUE(paintedRect(direct(transform)).adjusted(-1, -1, 1, 1).contains(paintedRect(image)));
    }
}

TEST_P(Pictures, AreDrawnAgainOnlyWhenSomethingChanges) {
    PictureCache<int> cache;
    const auto show = [&](int subject, const QRectF& area, const QPointF& offset, std::size_t index) {
        (void)painted({40, 40}, [&](QPainter& painter) {
            painter.translate(offset);
            cache.show(painter, subject, area, fillSquare, index);
        });
        return cache.drawCount();
    };
    const QRectF area(0, 0, 10, 10);
    EXPECT_EQ(show(1, area, {0, 0}, 0), 1U);
    EXPECT_EQ(show(1, area, {0, 0}, 0), 1U);
    EXPECT_EQ(show(1, area, {8, 3}, 0), 1U) << "whole pixels away";
    EXPECT_EQ(show(2, area, {0, 0}, 0), 2U) << "another subject";
    EXPECT_EQ(show(2, {0, 0, 12, 10}, {0, 0}, 0), 3U) << "another area";
    EXPECT_EQ(show(2, area, {0, 0}, 4), 4U) << "another picture of the same chart";
    EXPECT_EQ(show(2, area, {0.25, 0}, 4), 5U) << "another place within the pixel";
}

TEST_P(Pictures, TooLargeForAnyScreenAreNotDrawn) {
    PictureCache<int> cache;
    (void)painted({40, 40}, [&](QPainter& painter) {
        cache.show(painter, 1, {0, 0, 1e6, 10}, fillSquare);
        cache.show(painter, 1, {0, 0, 0, 10}, fillSquare);
        cache.show(painter, 1, {0, 0, std::numeric_limits<double>::quiet_NaN(), 10}, fillSquare);
    });
    EXPECT_EQ(cache.drawCount(), 0U);
}

QPainterPath lineFrom(const QPointF& from, const QPointF& to) {
    QPainterPath path;
    path.moveTo(from);
    path.lineTo(to);
    return path;
}

TEST_P(Pictures, OfALineCoverWhatAFilledOutlineCovers) {
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

TEST_P(Pictures, OfALineDoNotAddUpWhereItCrossesItself) {
    QPainterPath path = lineFrom({5, 20}, {35, 20});
    path.lineTo(5, 20);
    const PixelGrid grid{.pixelsPerPoint = GetParam(), .phase = {}};
    EXPECT_EQ(lineMask(grid, {0, 0, 40, 40}, path, 0.5).image,
              lineMask(grid, {0, 0, 40, 40}, lineFrom({5, 20}, {35, 20}), 0.5).image);
}

TEST_P(Pictures, OfADashedLineCarryTheDashesOverCorners) {
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
