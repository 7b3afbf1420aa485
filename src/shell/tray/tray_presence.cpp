#include "shell/tray/tray_presence.h"

#include "shell/painted/bus_opening.h"
#include "shell/tray/tray_connection.h"

#include <QDBusMessage>
#include <QThread>

#include <future>
#include <thread>

namespace orvelle {
namespace {

/// A connection to the bus that is closed at the end.
class TemporaryConnection {
public:
    explicit TemporaryConnection(const QString& address)
        : m_connection(openBus(name(), address)) {}
    ~TemporaryConnection() { QDBusConnection::disconnectFromBus(name()); }
    TemporaryConnection(const TemporaryConnection&) = delete;
    TemporaryConnection& operator=(const TemporaryConnection&) = delete;

    [[nodiscard]] const QDBusConnection* operator->() const { return &m_connection; }

private:
    [[nodiscard]] static QString name() { return QStringLiteral("orvelle-tray-presence"); }

    QDBusConnection m_connection;
};

std::optional<QString> askBus(const QString& address, std::chrono::milliseconds patience) {
    const TemporaryConnection connection(address);
    if (!connection->isConnected())
        return QStringLiteral("there is no session bus that could tell of a tray");
    QDBusMessage question = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("NameHasOwner"));
    question << trayService();
    const QDBusMessage answer = connection->call(question, QDBus::Block, static_cast<int>(patience.count()));
    return answer.arguments().value(0).toBool()
               ? std::nullopt
               : std::optional(QStringLiteral("no tray is on the session bus"));
}

} // namespace

std::optional<QString> trayAbsence(const QString& busAddress, std::chrono::milliseconds patience) {
    QThread::currentThread(); // Qt takes the first thread that it sees for the main one
    // A thread of its own, because connecting to a bus that does not answer takes long.
    std::promise<std::optional<QString>> promise;
    std::future<std::optional<QString>> answer = promise.get_future();
    std::thread([promise = std::move(promise), busAddress, patience]() mutable {
        promise.set_value(askBus(busAddress, patience));
    }).detach();
    if (answer.wait_for(patience) != std::future_status::ready)
        return QStringLiteral("the session bus does not answer");
    return answer.get();
}

} // namespace orvelle
