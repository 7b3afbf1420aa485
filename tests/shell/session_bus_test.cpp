#include "shell/linux/session_bus.h"
#include "support/environment.h"
#include "support/hanging_bus.h"
#include "support/temporary_tree.h"

#include <QElapsedTimer>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>
#include <sys/socket.h>
#include <sys/un.h>
#include <thread>
#include <unistd.h>
#include <vector>

namespace orvelle {
namespace {

using std::chrono::milliseconds;

/// A bus that answers its first client with one line, after it has heard who that is.
class AnsweringBus {
public:
    AnsweringBus() {
        const std::string path = socketName().toStdString();
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        path.copy(static_cast<char*>(address.sun_path), sizeof(address.sun_path) - 1);
        EXPECT_EQ(::bind(m_socket, reinterpret_cast<const sockaddr*>(&address), sizeof(address)), 0);
        EXPECT_EQ(::listen(m_socket, 8), 0);
        m_thread = std::thread([this] { answer(); });
    }
    ~AnsweringBus() {
        m_thread.join();
        ::close(m_socket);
    }
    AnsweringBus(const AnsweringBus&) = delete;
    AnsweringBus& operator=(const AnsweringBus&) = delete;

    [[nodiscard]] QByteArray socketName() const {
        return QByteArray::fromStdString((m_tree.root() / "bus").string());
    }
    /// For when it has answered.
    [[nodiscard]] std::string heard() const { return m_heard; }

private:
    void answer() {
        const int client = ::accept(m_socket, nullptr, nullptr);
        std::array<char, 100> words{};
        const ssize_t count = ::read(client, words.data(), words.size());
        m_heard.assign(words.data(), static_cast<std::size_t>(std::max(count, ssize_t{0})));
        EXPECT_GT(::write(client, "REJECTED\r\n", 10), 0);
        ::close(client);
    }

    TemporaryTree m_tree;
    int m_socket = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    std::string m_heard;
    std::thread m_thread;
};

TEST(BusSocket, IsWhereTheAddressSays) {
    EXPECT_EQ(busSocket("unix:path=/run/user/1000/bus"), QByteArray("/run/user/1000/bus"));
    EXPECT_EQ(busSocket("unix:guid=12,path=/tmp/a%20b%2cc;tcp:host=localhost"), QByteArray("/tmp/a b,c"));
    EXPECT_EQ(busSocket("unix:abstract=/tmp/dbus-1,guid=12"), QByteArray("\0/tmp/dbus-1", 12));
}

TEST(BusSocket, IsUnknownForOtherAddresses) {
    for (const char* address :
         {"", ";", "unix:", "unix:tmpdir=/tmp", "autolaunch:", "tcp:host=localhost,port=1",
          "path=/run/user/1000/bus", "tcp:host=a;unix:path=/b"})
        EXPECT_EQ(busSocket(address), std::nullopt) << address;
}

TEST(SilentBus, IsOneThatTakesAConnectionAndDoesNotAnswer) {
    const HangingBus bus;
    EXPECT_TRUE(isSilent(*busSocket(bus.address()), milliseconds(50)));
}

TEST(SilentBus, IsOneThatTakesNoMoreConnections) {
    const HangingBus bus;
    const QByteArray name = *busSocket(bus.address());
    std::vector<std::thread> clients;
    for (int client = 0; client < 12; ++client)
        clients.emplace_back([&name] { EXPECT_TRUE(isSilent(name, milliseconds(300))); });
    for (std::thread& client : clients)
        client.join();
}

TEST(SilentBus, IsNotOneThatAnswersAnything) {
    const AnsweringBus bus;
    EXPECT_FALSE(isSilent(bus.socketName(), milliseconds(5000)));
    const std::string hello = bus.heard();
    EXPECT_EQ(hello.substr(0, 15), std::string("\0AUTH EXTERNAL ", 15));
    EXPECT_EQ(hello.substr(hello.size() - 2), "\r\n");
}

TEST(SilentBus, IsNotOneThatIsNotThere) {
    const TemporaryTree tree;
    EXPECT_FALSE(isSilent(QByteArray::fromStdString((tree.root() / "bus").string()), milliseconds(5000)));
    EXPECT_FALSE(isSilent({}, milliseconds(5000)));
    EXPECT_FALSE(isSilent(QByteArray(5000, 'a'), milliseconds(5000)));
}

TEST(SilentSessionBus, IsHiddenFromTheProcess) {
    const HangingBus bus;
    const EnvironmentVariable address("DBUS_SESSION_BUS_ADDRESS", bus.address());
    avoidSilentSessionBus(milliseconds(50));
    EXPECT_EQ(qgetenv("DBUS_SESSION_BUS_ADDRESS"), "disabled:");
}

TEST(SilentSessionBus, IsFoundWithoutAnAddress) {
    const HangingBus bus;
    const QByteArray socket = *busSocket(bus.address());
    const EnvironmentVariable folder("XDG_RUNTIME_DIR", socket.chopped(4)); // without "/bus"
    const EnvironmentVariable address("DBUS_SESSION_BUS_ADDRESS", "");
    avoidSilentSessionBus(milliseconds(50));
    EXPECT_EQ(qgetenv("DBUS_SESSION_BUS_ADDRESS"), "disabled:");
}

TEST(SilentSessionBus, IsUsedWhenItAnswers) {
    const AnsweringBus bus;
    const QByteArray given = "unix:path=" + bus.socketName();
    const EnvironmentVariable address("DBUS_SESSION_BUS_ADDRESS", given);
    avoidSilentSessionBus();
    EXPECT_EQ(qgetenv("DBUS_SESSION_BUS_ADDRESS"), given);
}

TEST(SessionBusProgram, IsStartedWithoutAnAddressOrByOneThatSaysSo) {
    EXPECT_TRUE(startsProgram("", false));
    EXPECT_FALSE(startsProgram("", true));
    for (const char* address : {"autolaunch:", "autolaunch:scope=x",
                                "unix:path=/run/bus;autolaunch:", "unixexec:path=ssh,argv1=host"})
        EXPECT_TRUE(startsProgram(address, true)) << address;
    for (const char* address :
         {"unix:path=/run/autolaunch:", "unix:abstract=x;tcp:host=h,port=1", "disabled:"})
        EXPECT_FALSE(startsProgram(address, false)) << address;
}

TEST(SessionBusProgram, IsNotStarted) {
    const TemporaryTree folder;
    const EnvironmentVariable runtime("XDG_RUNTIME_DIR", QByteArray::fromStdString(folder.root().string()));
    const EnvironmentVariable address("DBUS_SESSION_BUS_ADDRESS", std::nullopt);
    avoidStartingSessionBus();
    EXPECT_EQ(qgetenv("DBUS_SESSION_BUS_ADDRESS"), "disabled:");
}

TEST(SessionBusProgram, IsNotThoughtNecessaryWhereThereIsABus) {
    const TemporaryTree folder;
    folder.write("bus", "stands for a socket");
    const EnvironmentVariable runtime("XDG_RUNTIME_DIR", QByteArray::fromStdString(folder.root().string()));
    const EnvironmentVariable address("DBUS_SESSION_BUS_ADDRESS", std::nullopt);
    avoidStartingSessionBus();
    EXPECT_FALSE(qEnvironmentVariableIsSet("DBUS_SESSION_BUS_ADDRESS"));
    const EnvironmentVariable given("DBUS_SESSION_BUS_ADDRESS", "unix:path=/run/any");
    avoidStartingSessionBus();
    EXPECT_EQ(qgetenv("DBUS_SESSION_BUS_ADDRESS"), "unix:path=/run/any");
}

} // namespace
} // namespace orvelle
