#include "windows/settings/settings_fixture.h"

#include <QPointingDevice>

namespace orvelle {
namespace {

/// What moves the window on a desktop: here, what the desktop would take over.
class SettingsMoving : public SettingsFixture {
protected:
    /// In the row of the title, where there is no text.
    [[nodiscard]] QPoint emptyPoint() const {
        const QQuickItem* title = item("titleBar");
        return title->mapToScene({title->width() / 2, title->height() / 2}).toPoint();
    }
    [[nodiscard]] bool isArmed() const { return item("mover")->property("isArmed").toBool(); }
    [[nodiscard]] double scrolled() const { return item("scroller")->property("contentY").toDouble(); }
    void moveTo(const QPoint& point) {
        QTest::mouseMove(view.get(), point);
        QTest::qWait(1); // the window handles moves with its next frame
    }
    /// Moves the pressed mouse up in steps.
    void dragFrom(const QPoint& point, int distance) {
        QTest::mousePress(view.get(), Qt::LeftButton, {}, point);
        for (int step = 1; step <= distance; ++step)
            moveTo(point - QPoint(0, step));
    }
    void releaseAt(const QPoint& point) { QTest::mouseRelease(view.get(), Qt::LeftButton, {}, point); }
};

TEST_F(SettingsMoving, BeginsWhenTheMouseDragsTheEmptyBackground) {
    dragFrom(emptyPoint(), 4);
    EXPECT_TRUE(isArmed()) << "which may become a click";
    releaseAt(emptyPoint());
    dragFrom(emptyPoint(), 20);
    EXPECT_FALSE(isArmed()) << "the desktop has taken over";
    EXPECT_EQ(scrolled(), 0) << "the mouse moves the window, not the settings in it";
    releaseAt(emptyPoint());
    click(control(u"CPU"));
    EXPECT_FALSE(settings.showCPU()) << "the next click is one";
}

TEST_F(SettingsMoving, DoesNotBeginOnAControl) {
    const QQuickItem* control = this->control(u"CPU");
    const QPoint middle = control->mapToScene({control->width() / 2, control->height() / 2}).toPoint();
    dragFrom(middle, 4);
    EXPECT_FALSE(isArmed());
    releaseAt(middle);
    EXPECT_FALSE(settings.showCPU());
}

TEST_F(SettingsMoving, LeavesTheFingerToScrolling) {
    const std::unique_ptr<QPointingDevice> screen(QTest::createTouchDevice());
    const QPoint start = emptyPoint() + QPoint(0, 300);
    const QPoint background(4, start.y()); // left of every control
    QTest::touchEvent(view.get(), screen.get()).press(0, background);
    for (int step = 1; step <= 20; ++step) {
        QTest::touchEvent(view.get(), screen.get()).move(0, background - QPoint(0, 5 * step));
        QTest::qWait(1);
    }
    EXPECT_GT(scrolled(), 20);
    QTest::touchEvent(view.get(), screen.get()).release(0, background - QPoint(0, 100));
}

} // namespace
} // namespace orvelle
