#include "shell/tray/tray_presence.h"

#include "shell/tray/tray_connection.h"

#include <QDBusMessage>
#include <QThread>

#include <future>
#include <thread>

namespace orvelle {
namespace {

bool askBus(const QString& address, std::chrono::milliseconds patience) {
    const QString name = QStringLiteral("orvelle-tray-presence");
    bool hasTray = false;
    {
        const QDBusConnection connection = openBus(address, name);
        QDBusMessage question = QDBusMessage::createMethodCall(
            QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
            QStringLiteral("org.freedesktop.DBus"), QStringLiteral("NameHasOwner"));
        question << trayService();
        const QDBusMessage answer =
            connection.call(question, QDBus::Block, static_cast<int>(patience.count()));
        hasTray = connection.isConnected() && answer.arguments().value(0).toBool();
    }
    QDBusConnection::disconnectFromBus(name);
    return hasTray;
}

} // namespace

bool isTrayThere(const QString& busAddress, std::chrono::milliseconds patience) {
    QThread::currentThread(); // Qt takes the first thread that it sees for the main one
    // A thread of its own, because connecting to a bus that does not answer takes long.
    std::promise<bool> promise;
    std::future<bool> answer = promise.get_future();
    std::thread([promise = std::move(promise), busAddress, patience]() mutable {
        promise.set_value(askBus(busAddress, patience));
    }).detach();
    return answer.wait_for(patience) == std::future_status::ready && answer.get();
}

} // namespace orvelle
