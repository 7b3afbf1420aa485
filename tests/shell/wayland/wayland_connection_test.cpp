#include "shell/wayland/strip_fixture.h"

#include <sys/socket.h>
#include <wayland-client.h>

namespace orvelle {
namespace {

class ConnectionTest : public StripTest {
protected:
    ConnectionTest() { compositor.addOutput(QStringLiteral("HDMI-A-1"), QSize(400, 300)); }

    void SetUp() override {
        start();
        QObject::connect(&*strip, &WaylandStrip::lost, &*strip,
                         [this](const QString& reason) { losses.append(reason); });
        ASSERT_TRUE(waitForStrip());
    }
    [[nodiscard]] bool waitForLoss() {
        return waitUntil([this] { return !losses.isEmpty(); });
    }
    /// Turns of the event loop in a moment; a closed socket that is still watched makes thousands.
    static int turnsInAMoment() {
        int turns = 0;
        const auto counting = QObject::connect(QAbstractEventDispatcher::instance(),
                                               &QAbstractEventDispatcher::awake, [&turns] { ++turns; });
        passAMoment();
        QObject::disconnect(counting);
        return turns;
    }

    QStringList losses;
};

TEST_F(ConnectionTest, NamesTheRuleThatACompositorSaysWasBroken) {
    FakeCompositor::postError(*compositor.strip(), 2);
    ASSERT_TRUE(waitForLoss());
    EXPECT_TRUE(losses.front().contains(QStringLiteral("error 2 of zwlr_layer_surface_v1@")))
        << qPrintable(losses.front());
    EXPECT_FALSE(strip->bar().place().isOnScreen);
}

TEST_F(ConnectionTest, NoticesACompositorThatEnds) {
    compositor.disconnectClient();
    ASSERT_TRUE(waitForLoss());
    EXPECT_TRUE(losses.front().contains(QStringLiteral("closed the connection")))
        << qPrintable(losses.front());
}

TEST_F(ConnectionTest, IsLostOnceAndIsQuietThen) {
    compositor.disconnectClient();
    ASSERT_TRUE(waitForLoss());
    EXPECT_LE(turnsInAMoment(), 20);
    cpu->repaint();
    strip->bar().removeItem(*cpu);
    const std::unique_ptr<PressCatcher> catcher = strip->catchPresses();
    settleBoth();
    EXPECT_EQ(losses.size(), 1);
}

TEST_F(ConnectionTest, MayEndBeforeItHasReportedItsLoss) {
    compositor.disconnectClient();
    ASSERT_TRUE(waitUntil([this] {
        strip.reset();
        return true;
    }));
    settleBoth();
    EXPECT_TRUE(losses.isEmpty());
}

TEST_F(ConnectionTest, WaitsForACompositorThatDoesNotRead) {
    compositor.setStalled(true);
    for (int change = 0; change < 1000; ++change) {
        cpu->repaint();
        QCoreApplication::processEvents();
    }
    EXPECT_LE(turnsInAMoment(), 20);
    compositor.setStalled(false);
    settleBoth();
    EXPECT_TRUE(losses.isEmpty());
    EXPECT_LE(compositor.strip()->pictures, 4);
    EXPECT_TRUE(showsTheBar());
}

TEST_F(ConnectionTest, SendsTheRestWhenASocketTakesNoMore) {
    const int smallest = 1; // the system makes it some kilobytes
    ASSERT_EQ(setsockopt(socket, SOL_SOCKET, SO_SNDBUF, &smallest, sizeof smallest), 0);
    compositor.setStalled(true);
    std::vector<std::unique_ptr<PressCatcher>> catchers;
    for (int catcher = 0; catcher < 20; ++catcher) {
        catchers.push_back(strip->catchPresses());
        QCoreApplication::processEvents();
    }
    compositor.setStalled(false);
    EXPECT_TRUE(waitUntil([this] { return compositor.layerSurfaceCount == 21; }));
    EXPECT_TRUE(losses.isEmpty());
}

TEST(WaylandConnectionTest, SaysWhichDisplayCannotBeReached) {
    const QByteArray before = qgetenv("WAYLAND_DISPLAY");
    qputenv("WAYLAND_DISPLAY", "no-such-display");
    QString reason;
    EXPECT_EQ(WaylandConnection::open(reason), nullptr);
    EXPECT_TRUE(reason.contains(QStringLiteral("\"no-such-display\""))) << qPrintable(reason);
    EXPECT_TRUE(reason.contains(QStringLiteral("No such file"))) << qPrintable(reason);
    if (before.isNull())
        qunsetenv("WAYLAND_DISPLAY");
    else
        qputenv("WAYLAND_DISPLAY", before);
}

} // namespace
} // namespace orvelle
