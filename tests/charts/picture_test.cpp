#include "at_scale.h"
#include "charts/picture.h"

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

TEST_P(Pictures, AreNotDrawnWhenTooLargeForAnyScreen) {
    PictureCache<int> cache;
    (void)painted({40, 40}, [&](QPainter& painter) {
        cache.show(painter, 1, {0, 0, 1e6, 10}, fillSquare);
        cache.show(painter, 1, {0, 0, 0, 10}, fillSquare);
        cache.show(painter, 1, {0, 0, std::numeric_limits<double>::quiet_NaN(), 10}, fillSquare);
    });
    EXPECT_EQ(cache.drawCount(), 0U);
}

TEST(Tinted, MultipliesTheOpacities) {
    QImage mask(3, 1, QImage::Format_Alpha8);
    mask.fill(0);
    mask.scanLine(0)[1] = 128;
    mask.scanLine(0)[2] = 255;
    const QImage image = tinted(mask, QColor(255, 0, 0, 128));
    EXPECT_EQ(image.pixelColor(0, 0).alpha(), 0);
    EXPECT_NEAR(image.pixelColor(1, 0).alpha(), 64, 1);
    EXPECT_NEAR(image.pixelColor(2, 0).alpha(), 128, 1);
    EXPECT_EQ(image.pixelColor(2, 0).red(), 255);
    EXPECT_TRUE(tinted(QImage(), Qt::red).isNull());
}

} // namespace
} // namespace orvelle
