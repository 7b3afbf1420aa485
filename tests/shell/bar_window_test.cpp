#include "shell/painted/bar_geometry.h"
#include "shell/painted/bar_window.h"
#include "support/frames.h"

#include <QScreen>
#include <gtest/gtest.h>

namespace orvelle {
namespace {

/// Has the item filled with one colour, and beyond its bounds, and counts how often.
void fill(BarItem& item, const QColor& color, int& paintCount) {
    item.setPaint([color, &paintCount](QPainter& painter, const QRectF& bounds) {
        painter.fillRect(bounds.adjusted(-30, 0, 30, 0), color);
        ++paintCount;
    });
    item.repaint();
}

class BarWindowTest : public ::testing::Test {
protected:
    BarWindowTest() { bar.setGeometry(0, 0, 400, barHeightPoints); }

    void showBar() {
        bar.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&bar));
        ASSERT_TRUE(waitUntil([this] { return leftCount > 0; }));
    }

    BarWindow bar;
    int leftCount = 0;
    int rightCount = 0;
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
    ASSERT_TRUE(waitUntil([&item] { return item.bounds().right() == 500 - barRightMarginPoints; }));
}

TEST_F(BarWindowTest, RepaintsOnlyTheItemThatLooksDifferent) {
    BarItem& left = bar.addItem(QStringLiteral("cpu"), 60);
    BarItem& right = bar.addItem(QStringLiteral("memory"), 70);
    fill(left, Qt::red, leftCount);
    fill(right, Qt::blue, rightCount);
    showBar();
    const int leftBefore = leftCount;
    const int rightBefore = rightCount;

    right.repaint();
    ASSERT_TRUE(waitUntil([&] { return rightCount > rightBefore; }));
    EXPECT_EQ(rightCount, rightBefore + 1);
    EXPECT_EQ(leftCount, leftBefore);
}

TEST_F(BarWindowTest, KeepsAPictureInsideItsItem) {
    BarItem& left = bar.addItem(QStringLiteral("cpu"), 60);
    BarItem& right = bar.addItem(QStringLiteral("memory"), 70);
    fill(left, Qt::red, leftCount);
    fill(right, Qt::blue, rightCount);
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

TEST_F(BarWindowTest, TellsItsPixelsWhileItIsOnTheScreen) {
    BarItem& item = bar.addItem(QStringLiteral("cpu"), 60);
    EXPECT_EQ(item.visiblePixelsPerPoint(), 0);
    fill(item, Qt::red, leftCount);
    showBar();
    EXPECT_EQ(item.visiblePixelsPerPoint(), bar.devicePixelRatio());
}

class BarClickTest : public BarWindowTest {
protected:
    BarClickTest() {
        cpu.setClickHandler([this](ClickButton button) { clicks.append({QStringLiteral("cpu"), button}); });
        memory.setClickHandler(
            [this](ClickButton button) { clicks.append({QStringLiteral("memory"), button}); });
    }
    static QPoint middle(const BarItem& item) { return item.bounds().center().toPoint(); }

    BarItem& cpu = bar.addItem(QStringLiteral("cpu"), 60);
    BarItem& memory = bar.addItem(QStringLiteral("memory"), 70);
    QList<std::pair<QString, ClickButton>> clicks;
};

TEST_F(BarClickTest, ReachesTheItemUnderThePointerWithItsButton) {
    QTest::mouseClick(&bar, Qt::LeftButton, {}, middle(cpu));
    QTest::mouseClick(&bar, Qt::RightButton, {}, middle(memory));
    const QList<std::pair<QString, ClickButton>> expected{{QStringLiteral("cpu"), ClickButton::left},
                                                          {QStringLiteral("memory"), ClickButton::right}};
    EXPECT_EQ(clicks, expected);
}

TEST_F(BarClickTest, ReachesAnItemAtItsEdges) {
    const QRect bounds = cpu.bounds().toRect();
    for (const QPoint& corner : {bounds.topLeft() + QPoint(1, 0), bounds.bottomRight()})
        QTest::mouseClick(&bar, Qt::LeftButton, {}, corner);
    EXPECT_EQ(clicks.size(), 2);
    EXPECT_EQ(clicks.constLast().first, QStringLiteral("cpu"));
}

TEST_F(BarClickTest, IsNothingBesideTheItemsAndWithOtherButtons) {
    QTest::mouseClick(&bar, Qt::LeftButton, {}, QPoint(10, 10));
    QTest::mouseClick(&bar, Qt::MiddleButton, {}, middle(cpu));
    EXPECT_TRUE(clicks.isEmpty());
}

TEST_F(BarClickTest, IsMadeWhenTheButtonIsLetGo) {
    QTest::mousePress(&bar, Qt::LeftButton, {}, middle(cpu));
    EXPECT_TRUE(cpu.isHighlighted());
    EXPECT_TRUE(clicks.isEmpty());
    QTest::mouseRelease(&bar, Qt::LeftButton, {}, middle(cpu));
    EXPECT_FALSE(cpu.isHighlighted());
    EXPECT_EQ(clicks.size(), 1);
}

TEST_F(BarClickTest, IsTakenBackWhenTheButtonIsLetGoElsewhere) {
    QTest::mousePress(&bar, Qt::LeftButton, {}, middle(cpu));
    QTest::mouseMove(&bar, middle(memory));
    EXPECT_FALSE(cpu.isHighlighted());
    QTest::mouseMove(&bar, middle(cpu));
    EXPECT_TRUE(cpu.isHighlighted());
    QTest::mouseRelease(&bar, Qt::LeftButton, {}, middle(memory));
    EXPECT_FALSE(cpu.isHighlighted());
    EXPECT_TRUE(clicks.isEmpty());
}

TEST_F(BarClickTest, SurvivesAnItemThatIsRemovedWhileHeldDown) {
    QTest::mousePress(&bar, Qt::LeftButton, {}, middle(memory));
    bar.removeItem(memory);
    QTest::mouseRelease(&bar, Qt::LeftButton, {}, QPoint(350, 10));
    EXPECT_TRUE(clicks.isEmpty());
}

TEST_F(BarClickTest, SurvivesAHandlerThatRemovesItsItem) {
    bool clicked = false;
    memory.setClickHandler([this, &clicked](ClickButton) {
        bar.removeItem(memory);
        clicked = true;
    });
    QTest::mouseClick(&bar, Qt::LeftButton, {}, middle(memory));
    EXPECT_TRUE(clicked);
}

TEST_F(BarClickTest, PaintsAPlateBehindAnItemThatIsHeldDown) {
    fill(cpu, Qt::red, leftCount);
    showBar();
    const auto plateColor = [this] {
        return bar.screen()->grabWindow(bar.winId()).toImage().pixelColor(middle(memory));
    };
    const QColor before = plateColor();
    QTest::mousePress(&bar, Qt::LeftButton, {}, middle(memory));
    EXPECT_TRUE(waitUntil([&] { return plateColor().lightness() > before.lightness() + 20; }));
    QTest::mouseRelease(&bar, Qt::LeftButton, {}, middle(memory));
    EXPECT_TRUE(waitUntil([&] { return plateColor() == before; }));
}

TEST_F(BarWindowTest, PaintsNothingForAnItemWithoutAPicture) {
    bar.addItem(QStringLiteral("cpu"), 60);
    bool painted = false;
    QObject::connect(&bar, &BarWindow::painted, &bar, [&painted] { painted = true; });
    bar.show();
    EXPECT_TRUE(waitUntil([&painted] { return painted; }));
}

} // namespace
} // namespace orvelle
