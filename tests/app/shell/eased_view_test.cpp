#include "app/shell/eased_view.h"
#include "charts/animation_rules.h"
#include "support/manual_motion.h"

#include <QImage>
#include <gtest/gtest.h>

namespace orvelle {
namespace {

using namespace std::chrono_literals;

/// A picture of bars 20 points long that keeps what it was last painted with.
class BarsView final : public StatusItemView {
public:
    BarsView(QList<BarLook> looks, QList<BarLook>& painted)
        : m_looks(std::move(looks))
        , m_painted(painted) {}

    [[nodiscard]] ItemPicture picture(const QList<BarLook>& shown) const override {
        std::string key;
        for (const BarLook& look : shown)
            key += std::to_string(look.ratio) + look.color.name().toStdString();
        return {key, [&painted = m_painted, shown](QPainter& /*painter*/, const QRectF& /*bounds*/) {
                    painted = shown;
                }};
    }
    [[nodiscard]] EasedBars bars() const override { return {.looks = m_looks, .fullLength = 20}; }
    [[nodiscard]] QString accessibleName() const override { return {}; }
    [[nodiscard]] QString accessibleText() const override { return {}; }

private:
    QList<BarLook> m_looks;
    QList<BarLook>& m_painted;
};

class EasedViewTest : public ::testing::Test, protected ManualMotion {
protected:
    EasedViewTest() { replace(0.2); }

    void replace(double ratio, bool isOnScreen = true, const QColor& color = Qt::blue) {
        replaceAll({{ratio, color}}, isOnScreen);
    }
    void replaceAll(const QList<BarLook>& looks, bool isOnScreen = true) {
        view.replace(std::make_shared<BarsView>(looks, painted), 1, isOnScreen);
    }
    [[nodiscard]] QList<BarLook> shown() {
        QImage image(60, 22, QImage::Format_ARGB32_Premultiplied);
        QPainter painter(&image);
        view.paint(painter, {0, 0, 60, 22});
        return painted;
    }
    [[nodiscard]] double shownRatio() { return shown().at(0).ratio; }

    int repaints = 0;
    QList<BarLook> painted;
    EasedView view{motion, [this] { ++repaints; }};
};

TEST_F(EasedViewTest, ShowsTheFirstViewAtOnce) {
    EXPECT_EQ(shownRatio(), 0.2);
    EXPECT_FALSE(motion.isRunning());
}

TEST_F(EasedViewTest, EasesToTheBarsOfANewViewInThreeTenthsOfASecond) {
    repaints = 0;
    replace(0.9, true, Qt::red);
    EXPECT_EQ(shownRatio(), 0.2);
    pass(0.15);
    const double progress = easeInOut().valueForProgress(0.5);
    EXPECT_NEAR(shownRatio(), 0.2 + 0.7 * progress, 1e-6);
    EXPECT_NEAR(painted.at(0).color.redF(), progress, 1e-3);
    pass(0.15);
    EXPECT_EQ(shown(), (QList<BarLook>{{0.9, Qt::red}}));
    EXPECT_FALSE(motion.isRunning());
    EXPECT_GE(repaints, 7);
    EXPECT_LE(repaints, 10) << "some thirty times a second";
}

TEST_F(EasedViewTest, RepaintsNoMoreOnceTheBarsStand) {
    replace(0.9);
    pass(0.5);
    const int before = repaints;
    pass(10);
    EXPECT_EQ(repaints, before);
}

TEST_F(EasedViewTest, RepaintsOnlyWhatLooksDifferent) {
    EXPECT_EQ(repaints, 1) << "the first view";
    replace(0.2);
    EXPECT_EQ(repaints, 1);
    replace(0.21);
    EXPECT_EQ(repaints, 2) << "too short a way to move, and yet it is shown";
    replace(0.21, true, Qt::green);
    EXPECT_EQ(repaints, 3);
}

TEST_F(EasedViewTest, GoesOnWhenTheSameViewComesAgain) {
    replace(0.9);
    pass(0.16);
    const double before = shownRatio();
    replace(0.9);
    EXPECT_EQ(shownRatio(), before);
    pass(0.16);
    EXPECT_EQ(shownRatio(), 0.9) << "it did not begin again";
}

TEST_F(EasedViewTest, StartsFromWhatItShowsWhenTheNextViewComesEarly) {
    replace(1);
    pass(0.16);
    const double before = shownRatio();
    replace(0.2);
    EXPECT_EQ(shownRatio(), before);
    pass(0.4);
    EXPECT_EQ(shownRatio(), 0.2);
}

TEST_F(EasedViewTest, JumpsWhereNobodyWouldSeeItMove) {
    replace(0.22);
    EXPECT_EQ(shownRatio(), 0.22) << "0.4 pixels";
    EXPECT_FALSE(motion.isRunning());
    replace(0.9, false);
    EXPECT_EQ(shownRatio(), 0.9) << "not on the screen";
    EXPECT_FALSE(motion.isRunning());
    replaceAll({{0.1, Qt::blue}, {0.5, Qt::blue}});
    EXPECT_EQ(shownRatio(), 0.1) << "other bars";
    EXPECT_FALSE(motion.isRunning());
}

TEST_F(EasedViewTest, ShowsAnotherThemeAtOnce) {
    replace(0.2, true, Qt::green);
    EXPECT_EQ(shown().at(0).color, QColor(Qt::green));
    EXPECT_FALSE(motion.isRunning());
}

TEST_F(EasedViewTest, JumpsWhileTheUserWantsNoMotion) {
    motion.setReduced(true);
    replace(0.9);
    EXPECT_EQ(shownRatio(), 0.9);
    EXPECT_FALSE(motion.isRunning());
}

TEST(EaseInterval, StepsByHalfAPixelButNoOftenerThanThirtyTimesASecond) {
    const auto interval = [](double pixels) {
        return easeInterval({{0, Qt::blue}}, {{pixels / 20, Qt::blue}}, 20);
    };
    EXPECT_EQ(interval(0.4), std::nullopt);
    EXPECT_EQ(interval(0.5), 300ms);
    EXPECT_EQ(interval(1), 150ms);
    EXPECT_EQ(interval(2), 75ms);
    EXPECT_EQ(interval(14), 33ms);
}

TEST(EaseInterval, FollowsTheBarThatHasTheLongestWay) {
    const QList<BarLook> from{{0, Qt::blue}, {0, Qt::blue}, {0.5, Qt::blue}};
    const QList<BarLook> to{{0.01, Qt::blue}, {1, Qt::blue}, {0.5, Qt::blue}};
    EXPECT_EQ(easeInterval(from, to, 14), 33ms);
}

TEST(EaseInterval, IsShortWhereAColorFades) {
    EXPECT_EQ(easeInterval({{0.499, Qt::blue}}, {{0.501, Qt::yellow}}, 14), 33ms);
}

} // namespace
} // namespace orvelle
