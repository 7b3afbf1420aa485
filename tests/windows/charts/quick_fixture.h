#pragma once

#include "support/frames.h"
#include "support/manual_clock.h"
#include "windows/charts/chart_item.h"

#include <QQuickWindow>
#include <gtest/gtest.h>

#include <memory>

namespace orvelle {

/// A window on the software scene graph, as the panels have it, with items that move by the test's own time.
class QuickFixture : public ::testing::Test, protected ManualClock {
protected:
    QuickFixture() {
        window.setColor(Qt::black);
        window.resize(200, 120);
        QObject::connect(&window, &QQuickWindow::afterRendering, &window, [this] { ++frames; });
    }

    /// A new item in the window, 100 x 50 points at (40, 30). The test sets it up before the window is shown.
    template <typename Item>
    [[nodiscard]] std::unique_ptr<Item> placed() {
        auto item = std::make_unique<Item>(clock);
        item->setParentItem(window.contentItem());
        item->setPosition({40, 30});
        item->setSize({100, 50});
        return item;
    }

    void showWindow() {
        const int before = frames;
        window.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
        ASSERT_EQ(window.rendererInterface()->graphicsApi(), QSGRendererInterface::Software);
        waitUntilQuiet();
        ASSERT_GT(frames, before) << "nothing was painted";
    }
    /// Waits until what has changed is on the screen.
    void waitForFrame() {
        const int before = frames;
        waitUntilQuiet();
        ASSERT_GT(frames, before) << "nothing was repainted";
    }
    /// Waits until no frame follows the ones before.
    void waitUntilQuiet() { ASSERT_TRUE(settle(window)) << "it is repainted again and again"; }
    /// How many frames are painted while the test lets no time pass.
    [[nodiscard]] int framesWhenLeftAlone() {
        waitUntilQuiet();
        const int before = frames;
        passAMoment();
        return frames - before;
    }

    [[nodiscard]] QColor colorAt(int x, int y) { return window.grabWindow().pixelColor(x, y); }

    QQuickWindow window;
    int frames = 0; ///< painted so far
};

} // namespace orvelle
