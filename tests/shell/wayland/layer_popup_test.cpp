#include "shell/wayland/layer_fixture.h"
#include "shell/wayland/layer_popup.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QRasterWindow>
#include <QScreen>
#include <QSignalSpy>

#include <linux/input-event-codes.h>

namespace orvelle {
namespace {

constexpr int ownBarHeight = 22;
const QRect popupPlace(100, 30, 200, 120);

class LayerPopupTest : public LayerTest {
protected:
    void show() { popup.show(*QGuiApplication::primaryScreen(), popupPlace, {}); }
    [[nodiscard]] bool opens() {
        show();
        return waitUntil([this] { return window.isActive() && surface() && surface()->isMapped(); });
    }

    QRasterWindow window;
    LayerPopup popup{*shell, window, ownBarHeight, LayerKeyboard::takes, makePresses()};
    QSignalSpy closed{&popup, &Popup::closed};
};

TEST_F(LayerPopupTest, OpensOverEverythingAtItsPlace) {
    ASSERT_TRUE(opens());
    const std::optional<FakeSurface> shown = surface();
    EXPECT_EQ(shown->layer, overlayLayer);
    EXPECT_EQ(shown->requestedSize, popupPlace.size());
    EXPECT_EQ(shown->margins.left(), popupPlace.left());
    EXPECT_EQ(shown->margins.top(), popupPlace.top() - ownBarHeight);
    EXPECT_EQ(shown->picture.size(), popupPlace.size());
}

TEST_F(LayerPopupTest, IsPaintedOnlyWhenTheCompositorHasAnswered) {
    compositor.tell([](FakeCompositor& fake) {
        fake.answer = [&fake](FakeSurface& surface) {
            QThread::msleep(50);
            fake.configure(surface, surface.requestedSize);
        };
    });
    ASSERT_TRUE(opens());
    EXPECT_FALSE(surface()->wasPaintedTooEarly);
}

TEST_F(LayerPopupTest, TakesTheKeyboardExclusivelyOnlyUntilItHasIt) {
    compositor.tell([](FakeCompositor& fake) { fake.givesKeyboard = false; });
    show();
    ASSERT_TRUE(waitUntil([this] { return surface() && surface()->isMapped(); }));
    EXPECT_EQ(surface()->keyboard, exclusiveKeyboard);
    compositor.tell([](FakeCompositor& fake) { fake.seat().focus(fake.layerSurfaces().front()); });
    ASSERT_TRUE(waitUntil([this] { return window.isActive(); }));
    QTest::qWait(20);
    EXPECT_EQ(surface()->keyboard, shell->hasKeyboardOnDemand() ? keyboardOnDemand : exclusiveKeyboard);
}

TEST_F(LayerPopupTest, ClosesAtOnceWhenTheCompositorDoesNotAnswer) {
    compositor.tell([](FakeCompositor& fake) { fake.answer = nullptr; });
    QElapsedTimer time;
    time.start();
    show();
    EXPECT_LT(time.elapsed(), 5000);
    EXPECT_FALSE(popup.isShown());
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(closed.count(), 1);
}

TEST_F(LayerPopupTest, KeepsItsSizeWhereTheCompositorLeavesItToTheWindow) {
    compositor.tell([](FakeCompositor& fake) {
        fake.answer = [&fake](FakeSurface& surface) {
            for (int time = 0; time < 3; ++time)
                fake.configure(surface, QSize(0, 0));
        };
    });
    ASSERT_TRUE(opens());
    EXPECT_EQ(window.size(), popupPlace.size());
}

TEST_F(LayerPopupTest, TakesTheSizeThatTheCompositorWants) {
    ASSERT_TRUE(opens());
    compositor.tell([](FakeCompositor& fake) {
        for (int time = 0; time < 3; ++time)
            fake.configure(*fake.layerSurfaces().front(), QSize(150, 90));
    });
    EXPECT_TRUE(waitUntil([this] { return surface() && surface()->picture.size() == QSize(150, 90); }));
}

TEST_F(LayerPopupTest, ClosesWithEscape) {
    ASSERT_TRUE(opens());
    bool wasShown = false;
    QObject::connect(&popup, &Popup::dismissed, &window, [&] { wasShown = popup.isShown(); });
    pressKey(KEY_A);
    QTest::qWait(20);
    EXPECT_TRUE(popup.isShown());
    pressKey(KEY_ESC);
    EXPECT_TRUE(waitUntil([this] { return !popup.isShown(); }));
    EXPECT_TRUE(wasShown);
    EXPECT_FALSE(window.isVisible());
    EXPECT_EQ(closed.count(), 1);
}

TEST_F(LayerPopupTest, ClosesWhenTheKeyboardLeaves) {
    ASSERT_TRUE(opens());
    ASSERT_TRUE(takeKeyboardAway(window));
    EXPECT_TRUE(waitUntil([this] { return !popup.isShown(); }));
    EXPECT_EQ(closed.count(), 1);
}

TEST_F(LayerPopupTest, ClosesWhenTheCompositorClosesIt) {
    ASSERT_TRUE(opens());
    compositor.tell([](FakeCompositor& fake) { FakeCompositor::close(*fake.layerSurfaces().front()); });
    EXPECT_TRUE(waitUntil([this] { return !popup.isShown() && !surface(); }));
    EXPECT_EQ(closed.count(), 1);
}

TEST_F(LayerPopupTest, ClosesWithAPressElsewhere) {
    ASSERT_TRUE(opens());
    Q_EMIT presses->pressed();
    EXPECT_FALSE(popup.isShown());
    EXPECT_EQ(closed.count(), 1);
}

TEST_F(LayerPopupTest, ClosesWithAPressThatTheCompositorReportsOutsideOfIt) {
    ASSERT_TRUE(opens());
    const auto press = [this](const QPointF& position) {
        compositor.tell([position](FakeCompositor& fake) {
            fake.seat().enter(*fake.layerSurfaces().front(), QPointF(5, 5));
            fake.seat().move(position);
            fake.seat().press(BTN_LEFT);
            fake.seat().release(BTN_LEFT);
        });
        QTest::qWait(50);
    };
    press(QPointF(10, 10));
    EXPECT_TRUE(popup.isShown());
    press(QPointF(10, 300));
    EXPECT_FALSE(popup.isShown());
}

TEST_F(LayerPopupTest, OpensAgainHoweverItWasClosed) {
    for (int round = 1; round <= 3; ++round) {
        ASSERT_TRUE(opens()) << round;
        popup.close();
        EXPECT_EQ(closed.count(), 2 * round - 1);
        ASSERT_TRUE(opens()) << round;
        window.close();
        EXPECT_EQ(closed.count(), 2 * round);
    }
    EXPECT_TRUE(waitUntil([this] { return !surface(); }));
}

TEST_F(LayerPopupTest, GivesUpItsRoleBeforeItsSurface) {
    ASSERT_TRUE(opens());
    popup.close();
    ASSERT_TRUE(opens());
    window.hide();
    ASSERT_TRUE(opens());
    window.destroy();
    EXPECT_TRUE(waitUntil([this] { return !surface(); }));
    EXPECT_EQ(bereftRoleCount(), 0);
}

} // namespace
} // namespace orvelle
