#include "shell/wayland/wayland_search.h"

#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <cstring>
#include <sys/socket.h>
#include <sys/un.h>
#include <thread>
#include <unistd.h>
#include <wayland-server.h>

namespace orvelle {
namespace {

/// Keeps the environment of the tests' own compositor.
class WaylandSearchTest : public ::testing::Test {
protected:
    WaylandSearchTest() {
        qputenv("XDG_RUNTIME_DIR", m_folder.path().toLocal8Bit());
        qputenv("WAYLAND_DISPLAY", "wayland-test");
        qunsetenv("WAYLAND_SOCKET");
    }
    ~WaylandSearchTest() override {
        qunsetenv("WAYLAND_DISPLAY");
        qputenv("XDG_RUNTIME_DIR", m_runtimeFolder);
    }
    [[nodiscard]] QByteArray socketPath() const {
        return m_folder.filePath(QStringLiteral("wayland-test")).toLocal8Bit();
    }

private:
    QByteArray m_runtimeFolder = qgetenv("XDG_RUNTIME_DIR");
    QTemporaryDir m_folder;
};

/// A compositor that announces wl_compositor and nothing else, while it exists.
class SmallCompositor {
public:
    SmallCompositor()
        : m_display(wl_display_create()) {
        wl_global_create(m_display, &wl_compositor_interface, 1, nullptr, &ignoreBinding);
        wl_display_add_socket(m_display, "wayland-test");
        m_thread = std::thread([this] {
            while (!m_isEnding) {
                wl_event_loop_dispatch(wl_display_get_event_loop(m_display), 10);
                wl_display_flush_clients(m_display);
            }
        });
    }
    ~SmallCompositor() {
        m_isEnding = true;
        m_thread.join();
        wl_display_destroy_clients(m_display);
        wl_display_destroy(m_display);
    }
    SmallCompositor(const SmallCompositor&) = delete;
    SmallCompositor& operator=(const SmallCompositor&) = delete;

private:
    static void ignoreBinding(wl_client* /*client*/, void* /*data*/, std::uint32_t /*version*/,
                              std::uint32_t /*id*/) {}

    wl_display* m_display;
    std::atomic<bool> m_isEnding = false;
    std::thread m_thread;
};

TEST_F(WaylandSearchTest, FindsACompositorThatOffersEverything) {
    const SmallCompositor compositor;
    EXPECT_EQ(waylandAbsence({QStringLiteral("wl_compositor")}), std::nullopt);
}

TEST_F(WaylandSearchTest, NamesTheFirstInterfaceThatIsMissing) {
    const SmallCompositor compositor;
    EXPECT_EQ(waylandAbsence(
                  {QStringLiteral("wl_compositor"), QStringLiteral("wl_shm"), QStringLiteral("wl_seat")}),
              QStringLiteral("the Wayland compositor \"wayland-test\" does not offer wl_shm"));
}

TEST_F(WaylandSearchTest, NamesACompositorThatIsNotThere) {
    EXPECT_EQ(waylandAbsence({}),
              QStringLiteral("the Wayland compositor \"wayland-test\" cannot be reached"));
}

TEST_F(WaylandSearchTest, GivesUpOnACompositorThatDoesNotAnswer) {
    const int listening = ::socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
    std::strncpy(address.sun_path, socketPath().constData(), sizeof address.sun_path - 1);
    ASSERT_EQ(::bind(listening, reinterpret_cast<sockaddr*>(&address), sizeof address), 0);
    ASSERT_EQ(::listen(listening, 1), 0);
    EXPECT_EQ(waylandAbsence({}, std::chrono::milliseconds(50)),
              QStringLiteral("the Wayland compositor \"wayland-test\" does not answer"));
    ::close(listening);
}

TEST_F(WaylandSearchTest, LooksForNoneWhereTheSessionNamesNone) {
    qunsetenv("WAYLAND_DISPLAY");
    EXPECT_EQ(waylandAbsence({}), QStringLiteral("WAYLAND_DISPLAY names no Wayland compositor"));
}

TEST_F(WaylandSearchTest, LeavesASocketAloneThatServesOneConnection) {
    qputenv("WAYLAND_SOCKET", "99");
    EXPECT_EQ(waylandAbsence({}), QStringLiteral("WAYLAND_SOCKET serves one connection only"));
    EXPECT_EQ(qgetenv("WAYLAND_SOCKET"), "99");
    qunsetenv("WAYLAND_SOCKET");
}

} // namespace
} // namespace orvelle
