#include "shell/linux/session_bus.h"

#include <QDeadlineTimer>
#include <QList>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <thread>
#include <unistd.h>

namespace orvelle {
namespace {

constexpr const char* addressVariable = "DBUS_SESSION_BUS_ADDRESS";

/// A socket that is closed at the end.
class Socket {
public:
    Socket() = default;
    ~Socket() {
        if (m_descriptor >= 0)
            ::close(m_descriptor);
    }
    Socket(const Socket&) = delete;
    Socket& operator=(const Socket&) = delete;

    [[nodiscard]] int descriptor() const { return m_descriptor; }

private:
    int m_descriptor = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
};

enum class Connecting { done, refused, tooLate };

/// While too many clients wait to be taken the kernel asks to try again.
Connecting connectTo(const QByteArray& name, const Socket& socket, const QDeadlineTimer& deadline) {
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (name.isEmpty() || name.size() >= static_cast<qsizetype>(sizeof(address.sun_path)))
        return Connecting::refused;
    std::copy(name.begin(), name.end(), static_cast<char*>(address.sun_path));
    // The length counts, because a name that stands for no file may contain anything.
    const auto length =
        static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + static_cast<std::size_t>(name.size()));
    while (::connect(socket.descriptor(), reinterpret_cast<const sockaddr*>(&address), length) != 0) {
        if (errno != EAGAIN)
            return Connecting::refused;
        if (deadline.hasExpired())
            return Connecting::tooLate;
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    return Connecting::done;
}

/// The socket that clients use when no address is given.
QByteArray usualSocket() {
    const QByteArray folder = qgetenv("XDG_RUNTIME_DIR");
    return folder.isEmpty() ? QByteArray() : folder + "/bus";
}

/// The address that clients use, given or not.
QByteArray sessionAddress() {
    const QByteArray given = qgetenv(addressVariable);
    const QByteArray socket = usualSocket();
    return given.isEmpty() && !socket.isEmpty() ? "unix:path=" + socket : given;
}

/// Means nothing, so that connecting fails at once.
void hideSessionBus() {
    qputenv(addressVariable, "disabled:");
}

} // namespace

std::optional<QByteArray> busSocket(const QByteArray& address) {
    // The first of several addresses is the one that is tried first.
    const QByteArray first = address.split(';').constFirst();
    if (!first.startsWith("unix:"))
        return std::nullopt;
    const QList<QByteArray> pairs = first.mid(5).split(',');
    for (const QByteArray& pair : pairs) {
        if (pair.startsWith("path="))
            return QByteArray::fromPercentEncoding(pair.mid(5));
        if (pair.startsWith("abstract="))
            return '\0' + QByteArray::fromPercentEncoding(pair.mid(9));
    }
    return std::nullopt;
}

bool isSilent(const QByteArray& socketName, std::chrono::milliseconds patience) {
    const QDeadlineTimer deadline(patience);
    const Socket socket;
    const Connecting connecting = connectTo(socketName, socket, deadline);
    if (connecting != Connecting::done)
        return connecting == Connecting::tooLate;
    // The first words of every client: who it is. The bus accepts or refuses it, but says something.
    const QByteArray hello =
        '\0' + QByteArray("AUTH EXTERNAL ") + QByteArray::number(::getuid()).toHex() + "\r\n";
    if (::send(socket.descriptor(), hello.constData(), static_cast<std::size_t>(hello.size()), MSG_NOSIGNAL) <
        0)
        return false;
    pollfd answer{socket.descriptor(), POLLIN, 0};
    return ::poll(&answer, 1, static_cast<int>(deadline.remainingTime())) == 0;
}

bool startsProgram(const QByteArray& address, bool hasSocket) {
    if (address.isEmpty())
        return !hasSocket;
    const QList<QByteArray> ways = address.split(';');
    return std::ranges::any_of(ways, [](const QByteArray& way) {
        return way.startsWith("autolaunch:") || way.startsWith("unixexec:");
    });
}

void avoidStartingSessionBus() {
    const QByteArray socket = usualSocket();
    struct stat status{};
    const bool hasSocket = !socket.isEmpty() && ::stat(socket.constData(), &status) == 0;
    if (startsProgram(qgetenv(addressVariable), hasSocket))
        hideSessionBus();
}

void avoidSilentSessionBus(std::chrono::milliseconds patience) {
    const std::optional<QByteArray> name = busSocket(sessionAddress());
    if (!name || !isSilent(*name, patience))
        return;
    std::fprintf(stderr, "orvelle: the session's message bus does not answer, so it is not used\n");
    hideSessionBus();
}

void outliveSessionBus() {
    // Qt does not expect that a question to a closed connection has no answer to wait for. libdbus calls that
    // a misuse, and aborts unless the variable says otherwise.
    if (!qEnvironmentVariableIsSet("DBUS_FATAL_WARNINGS"))
        qputenv("DBUS_FATAL_WARNINGS", "0");
}

} // namespace orvelle
