#include "shell/wayland/strip_fixture.h"

#include <array>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>
#include <wayland-client.h>

namespace orvelle {
namespace {

void limitSendBuffer(int socket) {
    const int smallest = 1; // the system makes it some kilobytes
    ASSERT_EQ(setsockopt(socket, SOL_SOCKET, SO_SNDBUF, &smallest, sizeof smallest), 0);
}

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

TEST_F(ConnectionTest, LosesNothingWhenASocketTakesNoMore) {
    limitSendBuffer(socket);
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

/// A program without timers sleeps until the socket wakes it.
TEST(WaylandConnectionTest, SendsTheRestToACompositorThatReadsAgain) {
    std::array<int, 2> sockets{};
    ASSERT_EQ(socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, sockets.data()), 0);
    limitSendBuffer(sockets[0]);
    std::unique_ptr<WaylandConnection> connection = WaylandConnection::overSocket(sockets[0]);
    ssize_t requested = 0; // bytes
    do {
        constexpr int requests = 100;
        constexpr int bytesOfASync = 12;
        for (int count = 0; count < requests; ++count)
            wl_callback_destroy(wl_display_sync(connection->display()));
        requested += requests * bytesOfASync;
    } while (wl_display_flush(connection->display()) >= 0);

    QEventLoop loop;
    ssize_t received = 0;
    std::thread compositor([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(50)); // until the loop sleeps
        std::array<char, 4096> bytes{};
        ssize_t read = 1;
        for (; received < requested && read > 0; received += std::max<ssize_t>(read, 0))
            read = ::read(sockets[1], bytes.data(), bytes.size());
        QMetaObject::invokeMethod(&loop, &QEventLoop::quit, Qt::QueuedConnection);
    });
    QTimer::singleShot(patience, &loop, [&loop] { loop.exit(1); });
    EXPECT_EQ(loop.exec(), 0) << "the rest is not sent";
    connection.reset();
    compositor.join();
    ::close(sockets[1]);
    EXPECT_EQ(received, requested);
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
