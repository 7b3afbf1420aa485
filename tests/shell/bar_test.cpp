#include "shell/painted/bar_window.h"
#include "support/frames.h"

#include <QScreen>
#include <gtest/gtest.h>

#include <cmath>

namespace orvelle {
namespace {

TEST(ItemBounds, StandSideBySideFlushRight) {
    const QList<QRectF> bounds = itemBounds({60, 70, 90}, 1000, 1);
    ASSERT_EQ(bounds.size(), 3);
    EXPECT_EQ(bounds[2], QRectF(1000 - barRightMarginPoints - 90, 0, 90, 22));
    EXPECT_EQ(bounds[1].right(), bounds[2].left());
    EXPECT_EQ(bounds[0].right(), bounds[1].left());
    EXPECT_EQ(bounds[0].width(), 60);
}

TEST(ItemBounds, MeetOnWholePixelsAtFractionalScales) {
    for (const double pixelsPerPoint : {1.25, 1.5, 1.75}) {
        const QList<QRectF> bounds = itemBounds({60, 45, 65, 50}, 853, pixelsPerPoint);
        for (qsizetype index = 0; index < bounds.size(); ++index) {
            const double leftPixels = bounds[index].left() * pixelsPerPoint;
            EXPECT_NEAR(leftPixels, std::round(leftPixels), 1e-9);
            if (index > 0) {
                EXPECT_DOUBLE_EQ(bounds[index].left(), bounds[index - 1].right());
            }
        }
        EXPECT_NEAR(bounds.last().right(), 853 - barRightMarginPoints, 0.51 / pixelsPerPoint);
    }
}

TEST(ItemBounds, KeepTheWidthOfAnItemWhereverItStands) {
    for (const double pixelsPerPoint : {1.0, 1.25, 1.5, 1.75, 2.0}) {
        for (const QList<double>& lengths : {QList<double>{45}, {45, 45, 45, 45}, {45, 70, 45, 65, 45, 35}}) {
            const QList<QRectF> bounds = itemBounds(lengths, 853, pixelsPerPoint);
            for (qsizetype index = 0; index < bounds.size(); ++index)
                EXPECT_NEAR(bounds[index].width() * pixelsPerPoint,
                            std::round(lengths[index] * pixelsPerPoint), 1e-9)
                    << "item " << index << " at scale " << pixelsPerPoint;
        }
    }
}

TEST(ItemBounds, AreNoneWithoutItems) {
    EXPECT_TRUE(itemBounds({}, 1000, 1).isEmpty());
}

TEST(ItemBounds, KeepTheLastItemVisibleInABarThatIsTooNarrow) {
    const QList<QRectF> bounds = itemBounds({60, 70}, 100, 1);
    EXPECT_EQ(bounds[1].right(), 100 - barRightMarginPoints);
    EXPECT_LT(bounds[0].left(), 0);
}

TEST(BarWithoutAWindowTest, FollowsTheStripThatItsDesktopGivesIt) {
    BarPlace place{nullptr, QRect(100, 30, 400, barHeightPoints), 2, false};
    Bar bar([&place] { return place; });
    const BarItem& item = bar.addItem(QStringLiteral("cpu"), 60);
    EXPECT_EQ(bar.desktopBounds(item), QRectF(500 - barRightMarginPoints - 60, 30, 60, barHeightPoints));
    EXPECT_EQ(item.visiblePixelsPerPoint(), 0);
    place.isOnScreen = true;
    EXPECT_EQ(item.visiblePixelsPerPoint(), 2);
    place.geometry = QRect(0, 0, 300, barHeightPoints);
    bar.layOut();
    EXPECT_EQ(bar.desktopBounds(item).right(), 300 - barRightMarginPoints);
}

/// Has the item filled with one colour, and beyond its bounds, and counts how often.
void fill(BarItem& item, const QColor& color, int& paintCount) {
    item.setPaint([color, &paintCount](QPainter& painter, const QRectF& bounds, BarAppearance appearance) {
        EXPECT_EQ(appearance, BarAppearance::dark) << "as the bar's background";
        painter.fillRect(bounds.adjusted(-30, 0, 30, 0), color);
        ++paintCount;
    });
    item.repaint();
}

class BarWindowTest : public ::testing::Test {
protected:
    BarWindowTest() { window.setGeometry(0, 0, 400, barHeightPoints); }

    void showBar() {
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
        ASSERT_TRUE(waitUntil([this] { return leftCount > 0; }));
    }

    BarWindow window;
    Bar& bar = window.bar();
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

TEST_F(BarWindowTest, ReportsWhenTheFirstItemComesAndTheLastGoes) {
    int changes = 0;
    QObject::connect(&bar, &Bar::emptyChanged, &bar, [&changes] { ++changes; });
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
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    window.resize(500, barHeightPoints);
    ASSERT_TRUE(waitUntil([&item] { return item.bounds().right() == 500 - barRightMarginPoints; }));
}

TEST_F(BarWindowTest, RepaintsOnlyTheItemThatChanged) {
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
    const QImage picture = window.screen()->grabWindow(window.winId()).toImage();
    ASSERT_FALSE(picture.isNull());
    const auto colorAt = [&](double x) { return picture.pixelColor(static_cast<int>(x), 10); };
    EXPECT_EQ(colorAt(left.bounds().left() + 1), QColor(Qt::red));
    EXPECT_EQ(colorAt(left.bounds().right() - 1), QColor(Qt::red));
    EXPECT_EQ(colorAt(right.bounds().left() + 1), QColor(Qt::blue));
    EXPECT_EQ(colorAt(right.bounds().right() - 1), QColor(Qt::blue));
    EXPECT_EQ(colorAt(left.bounds().left() - 2), colorAt(10));
    EXPECT_EQ(colorAt(right.bounds().right() + 2), colorAt(10));
}

TEST_F(BarWindowTest, ReportsItsScaleOnlyWhileItIsOnTheScreen) {
    BarItem& item = bar.addItem(QStringLiteral("cpu"), 60);
    EXPECT_EQ(item.visiblePixelsPerPoint(), 0);
    fill(item, Qt::red, leftCount);
    showBar();
    EXPECT_EQ(item.visiblePixelsPerPoint(), window.devicePixelRatio());
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
    QTest::mouseClick(&window, Qt::LeftButton, {}, middle(cpu));
    QTest::mouseClick(&window, Qt::RightButton, {}, middle(memory));
    const QList<std::pair<QString, ClickButton>> expected{{QStringLiteral("cpu"), ClickButton::left},
                                                          {QStringLiteral("memory"), ClickButton::right}};
    EXPECT_EQ(clicks, expected);
}

TEST_F(BarClickTest, ReachesAnItemAtItsEdges) {
    const QRect bounds = cpu.bounds().toRect();
    for (const QPoint& corner : {bounds.topLeft() + QPoint(1, 0), bounds.bottomRight()})
        QTest::mouseClick(&window, Qt::LeftButton, {}, corner);
    EXPECT_EQ(clicks.size(), 2);
    EXPECT_EQ(clicks.constLast().first, QStringLiteral("cpu"));
}

TEST_F(BarClickTest, IsIgnoredBesideTheItemsAndWithOtherButtons) {
    QTest::mouseClick(&window, Qt::LeftButton, {}, QPoint(10, 10));
    QTest::mouseClick(&window, Qt::MiddleButton, {}, middle(cpu));
    EXPECT_TRUE(clicks.isEmpty());
}

TEST_F(BarClickTest, IsMadeWhenTheButtonIsLetGo) {
    QTest::mousePress(&window, Qt::LeftButton, {}, middle(cpu));
    EXPECT_TRUE(cpu.isHighlighted());
    EXPECT_TRUE(clicks.isEmpty());
    QTest::mouseRelease(&window, Qt::LeftButton, {}, middle(cpu));
    EXPECT_FALSE(cpu.isHighlighted());
    EXPECT_EQ(clicks.size(), 1);
}

TEST_F(BarClickTest, IsTakenBackWhenTheButtonIsLetGoElsewhere) {
    QTest::mousePress(&window, Qt::LeftButton, {}, middle(cpu));
    QTest::mouseMove(&window, middle(memory));
    EXPECT_FALSE(cpu.isHighlighted());
    QTest::mouseMove(&window, middle(cpu));
    EXPECT_TRUE(cpu.isHighlighted());
    QTest::mouseRelease(&window, Qt::LeftButton, {}, middle(memory));
    EXPECT_FALSE(cpu.isHighlighted());
    EXPECT_TRUE(clicks.isEmpty());
}

TEST_F(BarClickTest, SurvivesAnItemThatIsRemovedWhileHeldDown) {
    QTest::mousePress(&window, Qt::LeftButton, {}, middle(memory));
    bar.removeItem(memory);
    QTest::mouseRelease(&window, Qt::LeftButton, {}, QPoint(350, 10));
    EXPECT_TRUE(clicks.isEmpty());
}

TEST_F(BarClickTest, SurvivesAHandlerThatRemovesItsItem) {
    bool clicked = false;
    memory.setClickHandler([this, &clicked](ClickButton) {
        bar.removeItem(memory);
        clicked = true;
    });
    QTest::mouseClick(&window, Qt::LeftButton, {}, middle(memory));
    EXPECT_TRUE(clicked);
}

TEST_F(BarClickTest, PaintsAPlateBehindAnItemThatIsHeldDown) {
    fill(cpu, Qt::red, leftCount);
    showBar();
    const auto plateColor = [this] {
        return window.screen()->grabWindow(window.winId()).toImage().pixelColor(middle(memory));
    };
    const QColor before = plateColor();
    QTest::mousePress(&window, Qt::LeftButton, {}, middle(memory));
    EXPECT_TRUE(waitUntil([&] { return plateColor().lightness() > before.lightness() + 20; }));
    QTest::mouseRelease(&window, Qt::LeftButton, {}, middle(memory));
    EXPECT_TRUE(waitUntil([&] { return plateColor() == before; }));
}

TEST_F(BarWindowTest, PaintsNothingForAnItemWithoutAPicture) {
    bar.addItem(QStringLiteral("cpu"), 60);
    bool painted = false;
    QObject::connect(&window, &BarWindow::painted, &window, [&painted] { painted = true; });
    window.show();
    EXPECT_TRUE(waitUntil([&painted] { return painted; }));
}

} // namespace
} // namespace orvelle
