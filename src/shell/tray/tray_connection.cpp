#include "shell/tray/tray_connection.h"

#include "shell/tray/tray_menu.h"

#include <QCoreApplication>
#include <QDBusError>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>

#include <utility>

namespace orvelle {
namespace {

/// A name that no other icon of any program has.
QString nextServiceName() {
    static int count = 0;
    return QStringLiteral("org.kde.StatusNotifierItem-%1-%2")
        .arg(QCoreApplication::applicationPid())
        .arg(++count);
}

void requestName(const QDBusConnection& connection, const QString& name) {
    constexpr uint withoutQueue = 4;
    QDBusMessage request = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("RequestName"));
    request << name << withoutQueue;
    connection.send(request);
}

} // namespace

QString trayService() {
    return QStringLiteral("org.kde.StatusNotifierWatcher");
}

TrayConnection::TrayConnection(QObject& item, QObject& menu, TrayBus bus)
    : m_item(item)
    , m_menu(menu)
    , m_bus(std::move(bus))
    , m_serviceName(nextServiceName()) {
    m_retry.setSingleShot(true);
    m_retry.setInterval(m_bus.retryInterval);
    m_retry.callOnTimeout(this, &TrayConnection::connectToBus);
    connectToBus();
}

TrayConnection::~TrayConnection() {
    leaveBus();
}

void TrayConnection::leaveBus() {
    if (m_trayWatcher == nullptr)
        return; // asking Qt for the connection would wait for the thread that opens it
    m_trayWatcher.reset();
    // The tray notices that the name has gone.
    QDBusConnection::disconnectFromBus(m_serviceName);
}

void TrayConnection::connectToBus() {
    m_opening.emplace(m_serviceName, m_bus.address);
    connect(&*m_opening, &BusOpening::opened, this, &TrayConnection::useConnection);
    connect(&*m_opening, &BusOpening::failed, this, [this](const QString& reason) {
        reportAndRetry(QStringLiteral("there is no session bus (%1)").arg(reason));
    });
}

void TrayConnection::reportAndRetry(const QString& reason) {
    m_retry.start();
    m_bus.trayMissing(reason);
}

void TrayConnection::useConnection() {
    QDBusConnection connection(m_serviceName);
    connection.registerObject(itemPath, &m_item);
    connection.registerObject(TrayMenu::path, &m_menu);
    connection.connect(QString(), QStringLiteral("/org/freedesktop/DBus/Local"),
                       QStringLiteral("org.freedesktop.DBus.Local"), QStringLiteral("Disconnected"), this,
                       SLOT(handleDisconnect()));
    requestName(connection, m_serviceName);
    watchTray(connection);
    registerItem();
}

void TrayConnection::handleDisconnect() {
    leaveBus();
    reportAndRetry(QStringLiteral("the session bus has ended"));
}

void TrayConnection::watchTray(const QDBusConnection& connection) {
    m_trayWatcher = std::make_unique<QDBusServiceWatcher>(trayService(), connection,
                                                          QDBusServiceWatcher::WatchForOwnerChange);
    connect(m_trayWatcher.get(), &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString& /*service*/, const QString& /*oldOwner*/, const QString& newOwner) {
                if (!newOwner.isEmpty())
                    registerItem();
            });
}

void TrayConnection::registerItem() {
    QDBusMessage request =
        QDBusMessage::createMethodCall(trayService(), QStringLiteral("/StatusNotifierWatcher"), trayService(),
                                       QStringLiteral("RegisterStatusNotifierItem"));
    request.setAutoStartService(false);
    request << m_serviceName;
    auto* answer =
        new QDBusPendingCallWatcher(QDBusConnection(m_serviceName).asyncCall(request), m_trayWatcher.get());
    connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
        answer->deleteLater();
        if (!answer->isError())
            return;
        const QDBusError error = answer->error();
        const bool hasNoTray = error.type() == QDBusError::ServiceUnknown ||
                               error.name() == QLatin1String("org.freedesktop.DBus.Error.NameHasNoOwner");
        m_bus.trayMissing(hasNoTray ? QStringLiteral("this desktop has none")
                                    : QStringLiteral("it answered: %1").arg(error.message()));
    });
    // It belongs to the watcher of the tray. NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDeleteLeaks)
}

} // namespace orvelle
