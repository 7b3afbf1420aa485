#include "charts/at_scale.h"
#include "charts/continuous_rounded_rect.h"
#include "quick_fixture.h"
#include "windows/charts/continuous_rectangle_item.h"

namespace orvelle {
namespace {

class ContinuousRectangleHosting : public QuickFixture {
protected:
    ContinuousRectangleHosting() {
        plate.setParentItem(window.contentItem());
        plate.setSize({100, 50});
        plate.setProperty("color", QColor(Qt::red));
        plate.setProperty("radius", 20);
    }

    /// What the window shows where a path is filled with this colour.
    [[nodiscard]] static QImage filled(const QPainterPath& path, const QColor& color) {
        return paintedImage({100, 50}, 1, [&](QPainter& painter) {
            painter.fillRect(QRect(0, 0, 100, 50), Qt::black);
            painter.setRenderHint(QPainter::Antialiasing);
            painter.fillPath(path, color);
        });
    }
    [[nodiscard]] QImage shown() { return window.grabWindow().copy(0, 0, 100, 50); }

    ContinuousRectangleItem plate;
};

TEST_F(ContinuousRectangleHosting, HasCornersThatBendGradually) {
    showWindow();
    const QRectF place(0, 0, 100, 50);
    EXPECT_LE(largestDifference(shown(), filled(continuousRoundedRect(place, 20), Qt::red)), 2);
    QPainterPath circular;
    circular.addRoundedRect(place, 20, 20);
    EXPECT_GT(largestDifference(shown(), filled(circular, Qt::red)), 40);
}

TEST_F(ContinuousRectangleHosting, FollowsItsColorAndRadius) {
    showWindow();
    plate.setProperty("color", QColor(Qt::green));
    plate.setProperty("radius", 5);
    waitForFrame();
    EXPECT_LE(largestDifference(shown(), filled(continuousRoundedRect(QRectF(0, 0, 100, 50), 5), Qt::green)),
              2);
}

} // namespace
} // namespace orvelle
