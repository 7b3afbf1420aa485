#include "app/shell/x11/bar_geometry.h"
#include "app/shell/x11/bar_window.h"

#include <QScreen>
#include <QTest>
#include <gtest/gtest.h>

namespace orvelle {
namespace {

/// Fills its bounds, and beyond, with one colour and counts how often.
class FilledView final : public StatusItemView {
public:
    FilledView(QColor color, int& paintCount)
        : m_color(color)
        , m_paintCount(paintCount) {}

    void paint(QPainter& painter, const QRectF& bounds) const override {
        painter.fillRect(bounds.adjusted(-30, 0, 30, 0), m_color);
        ++m_paintCount;
    }
    [[nodiscard]] QString accessibleText() const override { return QStringLiteral("filled"); }

private:
    QColor m_color;
    int& m_paintCount;
};

class BarWindowTest : public ::testing::Test {
protected:
    BarWindowTest() { bar.setGeometry(0, 0, 400, barHeightPoints); }

    void showBar() {
        bar.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&bar));
        ASSERT_TRUE(QTest::qWaitFor([this] { return leftCount > 0; }));
    }

    BarWindow bar;
    int leftCount = 0;
    int rightCount = 0;
    std::shared_ptr<StatusItemView> red = std::make_shared<FilledView>(Qt::red, leftCount);
    std::shared_ptr<StatusItemView> blue = std::make_shared<FilledView>(Qt::blue, rightCount);
};

TEST_F(BarWindowTest, PlacesItemsInOrderFlushRight) {
    const BarItem& left = bar.addItem(QStringLiteral("cpu"), 60);
    const BarItem& right = bar.addItem(QStringLiteral("memory"), 70);
    EXPECT_EQ(right.bounds().right(), 400 - barRightMarginPoints);
    EXPECT_EQ(left.bounds().right(), right.bounds().left());
    EXPECT_EQ(left.bounds().width(), 60);
}

TEST_F(BarWindowTest, ClosesTheGapOfARemovedItem) {
    const BarItem& left = bar.addItem(QStringLiteral("cpu"), 60);
    const BarItem& right = bar.addItem(QStringLiteral("memory"), 70);
    bar.removeItem(right);
    EXPECT_EQ(left.bounds().right(), 400 - barRightMarginPoints);
}

TEST_F(BarWindowTest, TellsWhenTheFirstItemComesAndTheLastGoes) {
    int changes = 0;
    QObject::connect(&bar, &BarWindow::emptyChanged, &bar, [&changes] { ++changes; });
    const BarItem& left = bar.addItem(QStringLiteral("cpu"), 60);
    const BarItem& right = bar.addItem(QStringLiteral("memory"), 70);
    EXPECT_EQ(changes, 1);
    bar.removeItem(left);
    EXPECT_EQ(changes, 1);
    bar.removeItem(right);
    EXPECT_EQ(changes, 2);
    EXPECT_TRUE(bar.isEmpty());
}

TEST_F(BarWindowTest, FollowsItsWidth) {
    const BarItem& item = bar.addItem(QStringLiteral("cpu"), 60);
    bar.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&bar));
    bar.resize(500, barHeightPoints);
    ASSERT_TRUE(QTest::qWaitFor([&item] { return item.bounds().right() == 500 - barRightMarginPoints; }));
}

TEST_F(BarWindowTest, RepaintsOnlyTheItemWhoseViewChanged) {
    BarItem& left = bar.addItem(QStringLiteral("cpu"), 60);
    BarItem& right = bar.addItem(QStringLiteral("memory"), 70);
    left.setView(red);
    right.setView(blue);
    showBar();
    const int leftBefore = leftCount;
    const int rightBefore = rightCount;

    right.setView(blue);
    ASSERT_TRUE(QTest::qWaitFor([&] { return rightCount > rightBefore; }));
    EXPECT_EQ(rightCount, rightBefore + 1);
    EXPECT_EQ(leftCount, leftBefore);
}

TEST_F(BarWindowTest, KeepsAViewInsideItsItem) {
    BarItem& left = bar.addItem(QStringLiteral("cpu"), 60);
    BarItem& right = bar.addItem(QStringLiteral("memory"), 70);
    left.setView(red);
    right.setView(blue);
    showBar();
    const QImage picture = bar.screen()->grabWindow(bar.winId()).toImage();
    ASSERT_FALSE(picture.isNull());
    const auto colorAt = [&](double x) { return picture.pixelColor(static_cast<int>(x), 10); };
    EXPECT_EQ(colorAt(left.bounds().left() + 1), QColor(Qt::red));
    EXPECT_EQ(colorAt(left.bounds().right() - 1), QColor(Qt::red));
    EXPECT_EQ(colorAt(right.bounds().left() + 1), QColor(Qt::blue));
    EXPECT_EQ(colorAt(right.bounds().right() - 1), QColor(Qt::blue));
    EXPECT_EQ(colorAt(left.bounds().left() - 2), colorAt(10));
    EXPECT_EQ(colorAt(right.bounds().right() + 2), colorAt(10));
}

TEST_F(BarWindowTest, PaintsNothingForAnItemWithoutAView) {
    bar.addItem(QStringLiteral("cpu"), 60);
    bool painted = false;
    QObject::connect(&bar, &BarWindow::painted, &bar, [&painted] { painted = true; });
    bar.show();
    EXPECT_TRUE(QTest::qWaitFor([&painted] { return painted; }));
}

} // namespace
} // namespace orvelle
