#include "shell/wayland/layer_bar_focus.h"
#include "shell/wayland/layer_fixture.h"

#include <QGuiApplication>
#include <QScreen>

#include <linux/input-event-codes.h>

namespace orvelle {
namespace {

class LayerBarFocusTest : public LayerTest {
protected:
    LayerBarFocusTest() {
        for (const char* name : {"cpu", "memory"}) {
            BarItem& item = window.bar().addItem(QString::fromLatin1(name), 60);
            item.setClickHandler([this, &item](ClickButton) { clicked = item.identifier(); });
        }
    }
    [[nodiscard]] bool takesTheKeyboard() {
        focus.take();
        return waitUntil([this] { return window.bar().focusedItem() == QLatin1String("cpu"); });
    }

    bool isOnScreen = true;
    QString clicked;
    AccessibleBar window{
        [this] { return BarPlace{QGuiApplication::primaryScreen(), QRect(0, 0, 1280, 22), 1, isOnScreen}; }};
    LayerBarFocus focus{*shell, window, makePresses()};
};

TEST_F(LayerBarFocusTest, TakesTheKeyboardWithOneTransparentPoint) {
    ASSERT_TRUE(takesTheKeyboard());
    EXPECT_EQ(surface()->requestedSize, QSize(1, 1));
    EXPECT_EQ(surface()->picture.pixelColor(0, 0), QColor(Qt::transparent));
}

TEST_F(LayerBarFocusTest, LetsKeysChooseAnItem) {
    ASSERT_TRUE(takesTheKeyboard());
    pressKey(KEY_RIGHT);
    EXPECT_TRUE(waitUntil([this] { return window.bar().focusedItem() == QLatin1String("memory"); }));
    pressKey(KEY_ENTER);
    EXPECT_TRUE(waitUntil([this] { return clicked == QLatin1String("memory"); }));
}

TEST_F(LayerBarFocusTest, GivesTheKeyboardBackWithEscape) {
    ASSERT_TRUE(takesTheKeyboard());
    pressKey(KEY_ESC);
    EXPECT_TRUE(waitUntil([this] { return !surface(); }));
    EXPECT_EQ(window.bar().focusedItem(), QString());
    EXPECT_EQ(bereftRoleCount(), 0);
}

TEST_F(LayerBarFocusTest, GivesTheKeyboardBackWithAPressElsewhere) {
    ASSERT_TRUE(takesTheKeyboard());
    Q_EMIT presses->pressed();
    EXPECT_TRUE(waitUntil([this] { return !surface() && window.bar().focusedItem().isEmpty(); }));
}

TEST_F(LayerBarFocusTest, ForgetsTheKeyboardThatTheCompositorTakesAway) {
    ASSERT_TRUE(takesTheKeyboard());
    ASSERT_TRUE(takeKeyboardAway(window));
    EXPECT_TRUE(waitUntil([this] { return !surface() && window.bar().focusedItem().isEmpty(); }));
}

TEST_F(LayerBarFocusTest, ComesBackToTheItemThatAKeyClicked) {
    ASSERT_TRUE(takesTheKeyboard());
    pressKey(KEY_ENTER);
    ASSERT_TRUE(waitUntil([this] { return clicked == QLatin1String("cpu"); }));
    focus.yield();
    ASSERT_TRUE(waitUntil([this] { return !surface() && window.bar().focusedItem().isEmpty(); }));
    focus.resume();
    EXPECT_TRUE(waitUntil([this] { return window.bar().focusedItem() == QLatin1String("cpu"); }));
    pressKey(KEY_ESC);
    EXPECT_TRUE(waitUntil([this] { return !surface(); }));
    focus.resume(); // no key has clicked an item since
    EXPECT_FALSE(surface().has_value());
}

TEST_F(LayerBarFocusTest, GivesUpItsRoleBeforeItsSurface) {
    ASSERT_TRUE(takesTheKeyboard());
    window.hide();
    EXPECT_TRUE(waitUntil([this] { return !surface(); }));
    EXPECT_EQ(bereftRoleCount(), 0);
}

TEST_F(LayerBarFocusTest, TakesNothingWhileTheBarIsNotOnTheScreen) {
    isOnScreen = false;
    focus.take();
    QTest::qWait(20);
    EXPECT_FALSE(surface().has_value());
}

} // namespace
} // namespace orvelle
