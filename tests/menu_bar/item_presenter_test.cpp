#include "animation/animation_timing.h"
#include "menu_bar/item_presenter.h"
#include "menu_bar/menu_bar_item.h"
#include "support/manual_clock.h"
#include "support/pixels.h"

#include <gtest/gtest.h>

namespace orvelle {
namespace {

using namespace std::chrono_literals;

/// An item that records the calls.
class RecordingItem final : public StatusItem {
public:
    [[nodiscard]] const QString& identifier() const override { return m_identifier; }
    [[nodiscard]] double length() const override { return 60; }
    void setPaint(ItemPaint newPaint) override { paint = std::move(newPaint); }
    void repaint() override { ++repaints; }
    void setWords(const QString& name, const QString& text) override { words.append(name + u'|' + text); }
    [[nodiscard]] double visiblePixelsPerPoint() const override { return isOnScreen ? 1 : 0; }
    void setClickHandler(std::function<void(ClickButton)> /*handler*/) override {}
    [[nodiscard]] bool showsIcon() const override { return true; }
    void setIcon(const ItemIcon& icon) override { icons.append(icon); }

    ItemPaint paint;
    int repaints = 0;
    QStringList words;
    QList<ItemIcon> icons;
    bool isOnScreen = true;

private:
    QString m_identifier;
};

class ItemPresenterTest : public ::testing::Test, protected ManualClock {
protected:
    ItemPresenterTest() { show(0.2); }

    void show(double ratio, const QColor& color = Qt::blue) { showAll({{ratio, color}}); }
    void showAll(const QList<BarLook>& looks, const QString& text = {}) {
        std::vector<SceneNode> bars;
        for (const BarLook& look : looks)
            bars.push_back(levelBarNode({20, 8}, 0, look.ratio, look.color, true));
        presenter.show({.body = row(bars, 0), .accessibleText = text}, processorUsage);
    }
    [[nodiscard]] BarLook shownLook() const { return levelsOf(presenter.shown()).at(0).look; }
    [[nodiscard]] double shownRatio() const { return shownLook().ratio; }

    RecordingItem item;
    double processorUsage = 0;
    ItemPresenter presenter{item, clock};
};

TEST_F(ItemPresenterTest, ShowsTheFirstSceneAtOnce) {
    EXPECT_EQ(shownRatio(), 0.2);
    EXPECT_FALSE(clock.isRunning());
}

TEST_F(ItemPresenterTest, EasesToTheLevelsOfANewSceneInThreeTenthsOfASecond) {
    item.repaints = 0;
    show(0.9, Qt::red);
    EXPECT_EQ(shownRatio(), 0.2);
    pass(0.15);
    const double progress = easeInOut().valueForProgress(0.5);
    EXPECT_NEAR(shownRatio(), 0.2 + 0.7 * progress, 1e-6);
    EXPECT_NEAR(shownLook().color.redF(), progress, 1e-3);
    pass(0.15);
    EXPECT_EQ(shownLook(), (BarLook{0.9, Qt::red}));
    EXPECT_FALSE(clock.isRunning());
    EXPECT_EQ(item.repaints, 6);
}

TEST_F(ItemPresenterTest, StopsRepaintingWhenTheLevelsHaveArrived) {
    show(0.9);
    pass(0.5);
    const int before = item.repaints;
    pass(10);
    EXPECT_EQ(item.repaints, before);
}

TEST_F(ItemPresenterTest, RepaintsOnlyWhatLooksDifferent) {
    EXPECT_EQ(item.repaints, 1) << "the first scene";
    show(0.2);
    EXPECT_EQ(item.repaints, 1);
    show(0.21);
    EXPECT_EQ(item.repaints, 2) << "too short a way to move, and yet it is shown";
    show(0.21, Qt::green);
    EXPECT_EQ(item.repaints, 3);
}

TEST_F(ItemPresenterTest, KeepsEasingWhenTheSameSceneComesAgain) {
    show(0.9);
    pass(0.16);
    const double before = shownRatio();
    show(0.9);
    EXPECT_EQ(shownRatio(), before);
    pass(0.16);
    EXPECT_EQ(shownRatio(), 0.9) << "it did not begin again";
}

TEST_F(ItemPresenterTest, EasesFromTheCurrentLookWhenTheNextSceneComesEarly) {
    show(1);
    pass(0.16);
    const double before = shownRatio();
    show(0.2);
    EXPECT_EQ(shownRatio(), before);
    pass(0.4);
    EXPECT_EQ(shownRatio(), 0.2);
}

TEST_F(ItemPresenterTest, JumpsWhenTheMotionWouldBeInvisible) {
    show(0.22);
    EXPECT_EQ(shownRatio(), 0.22) << "0.4 pixels";
    EXPECT_FALSE(clock.isRunning());
    item.isOnScreen = false;
    show(0.9);
    EXPECT_EQ(shownRatio(), 0.9) << "not on the screen";
    EXPECT_FALSE(clock.isRunning());
    item.isOnScreen = true;
    showAll({{0.1, Qt::blue}, {0.5, Qt::blue}});
    EXPECT_EQ(shownRatio(), 0.1) << "other bars";
    EXPECT_FALSE(clock.isRunning());
}

TEST_F(ItemPresenterTest, ShowsAnotherThemeAtOnce) {
    show(0.2, Qt::green);
    EXPECT_EQ(shownLook().color, QColor(Qt::green));
    EXPECT_FALSE(clock.isRunning());
}

TEST_F(ItemPresenterTest, JumpsWhileTheUserWantsNoMotion) {
    clock.setReduced(true);
    show(0.9);
    EXPECT_EQ(shownRatio(), 0.9);
    EXPECT_FALSE(clock.isRunning());
}

TEST_F(ItemPresenterTest, JumpsWhileTheProcessorIsBusy) {
    processorUsage = 0.9;
    show(0.9);
    EXPECT_EQ(shownRatio(), 0.9);
    EXPECT_FALSE(clock.isRunning());
}

TEST_F(ItemPresenterTest, PaintsWhatItShows) {
    const auto picture = [this] {
        return paintedImage({60, 22}, 1, [this](QPainter& painter) {
            item.paint(painter, {0, 0, 60, 22}, BarAppearance::dark);
        });
    };
    const QImage before = picture();
    EXPECT_FALSE(paintedRect(before).isEmpty());
    show(0.9);
    EXPECT_EQ(picture(), before);
    pass(0.3);
    EXPECT_NE(picture(), before);
}

TEST_F(ItemPresenterTest, SetsNewWordsOnce) {
    item.words.clear();
    for (const char* text : {"CPU 1%", "CPU 1%", "CPU 2%"})
        showAll({{0.2, Qt::blue}}, QString::fromLatin1(text));
    EXPECT_EQ(item.words, (QStringList{QStringLiteral("|CPU 1%"), QStringLiteral("|CPU 2%")}));
    EXPECT_EQ(item.repaints, 1) << "words are not seen";
}

TEST_F(ItemPresenterTest, DoesNotEaseLevelsThatJump) {
    presenter.show({.body = levelBarNode({20, 8}, 0, 0.1, Qt::red, false)}, 0);
    presenter.show({.body = levelBarNode({20, 8}, 0, 0.9, Qt::red, false)}, 0);
    EXPECT_EQ(shownRatio(), 0.9);
    EXPECT_FALSE(clock.isRunning());
}

TEST_F(ItemPresenterTest, StopsWhenDestroyed) {
    auto other = std::make_unique<ItemPresenter>(item, clock);
    other->show({.body = levelBarNode({20, 8}, 0, 0.1, Qt::red, true)}, 0);
    other->show({.body = levelBarNode({20, 8}, 0, 0.9, Qt::red, true)}, 0);
    EXPECT_TRUE(clock.isRunning());
    other.reset();
    EXPECT_FALSE(clock.isRunning());
}

QList<Level> levels(const QList<BarLook>& looks, double fullLength = 20) {
    QList<Level> result;
    for (const BarLook& look : looks)
        result.append({.look = look, .fullLength = fullLength});
    return result;
}

std::optional<std::chrono::milliseconds> intervalOfPixels(double pixels, double processorUsage = 0) {
    return easeInterval(levels({{0, Qt::blue}}), levels({{pixels / 40, Qt::blue}}), 2, processorUsage);
}

TEST(EaseInterval, MovesByAPixelAtMostTwentyTimesASecond) {
    EXPECT_EQ(intervalOfPixels(0.4), std::nullopt);
    EXPECT_EQ(intervalOfPixels(0.5), 300ms);
    EXPECT_EQ(intervalOfPixels(1), 300ms);
    EXPECT_EQ(intervalOfPixels(2), 150ms);
    EXPECT_EQ(intervalOfPixels(14), 50ms);
}

TEST(EaseInterval, TakesFewerFramesTheBusierTheProcessorIs) {
    EXPECT_EQ(intervalOfPixels(14, 0.24), 50ms);
    EXPECT_EQ(intervalOfPixels(14, 0.25), 100ms);
    EXPECT_EQ(intervalOfPixels(2, 0.5), 150ms);
    EXPECT_EQ(intervalOfPixels(14, 0.74), 100ms);
    EXPECT_EQ(intervalOfPixels(14, 0.75), std::nullopt);
}

TEST(EaseInterval, FollowsTheBarWithTheLongestDistance) {
    const QList<Level> from = levels({{0, Qt::blue}, {0, Qt::blue}, {0.5, Qt::blue}}, 14);
    const QList<Level> to = levels({{0.01, Qt::blue}, {1, Qt::blue}, {0.5, Qt::blue}}, 14);
    EXPECT_EQ(easeInterval(from, to, 1, 0), 50ms);
}

TEST(EaseInterval, IsShortWhenAColorFades) {
    EXPECT_EQ(easeInterval(levels({{0.499, Qt::blue}}), levels({{0.501, Qt::yellow}}), 1, 0), 50ms);
}

TEST_F(ItemPresenterTest, SetsAnIconThatLooksOrReadsOtherwise) {
    IconScene icon{.body = iconSymbol(QStringLiteral("cpu"), Qt::blue),
                   .label = QStringLiteral("1%"),
                   .widestLabel = {}};
    presenter.showIcon(icon);
    presenter.showIcon(icon);
    ASSERT_EQ(item.icons.size(), 1);
    icon.label = QStringLiteral("2%");
    presenter.showIcon(icon);
    ASSERT_EQ(item.icons.size(), 2);
    EXPECT_EQ(item.icons[1].label, QStringLiteral("2%"));
    const auto paint = [](const auto& with) {
        return paintedImage({22, 22}, 1, [&with](QPainter& painter) { with(painter); });
    };
    EXPECT_EQ(paint([this](QPainter& painter) { item.icons[1].paint(painter, {0, 0, 22, 22}); }),
              paint([&icon](QPainter& painter) { paintIcon(painter, {0, 0, 22, 22}, icon.body); }));
}

} // namespace
} // namespace orvelle
