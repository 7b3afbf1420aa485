#pragma once

#include "support/temporary_tree.h"

#include <QDBusConnection>
#include <QProcess>
#include <gtest/gtest.h>

namespace orvelle {

/// A message bus of the test's own, from a daemon that ends with the object.
class PrivateBus {
public:
    PrivateBus() { start(); }
    ~PrivateBus() {
        for (const QString& name : m_connections)
            QDBusConnection::disconnectFromBus(name);
        end();
    }
    PrivateBus(const PrivateBus&) = delete;
    PrivateBus& operator=(const PrivateBus&) = delete;

    /// Starts the daemon again, at the address that it had before.
    void start() {
        std::filesystem::remove(socket());
        m_daemon.start(QStringLiteral("dbus-daemon"),
                       {QStringLiteral("--session"), QStringLiteral("--nofork"),
                        QStringLiteral("--nopidfile"), QStringLiteral("--address=") + address(),
                        QStringLiteral("--print-address")});
        if (!m_daemon.waitForReadyRead(20'000))
            ADD_FAILURE() << "no message bus: " << qPrintable(m_daemon.errorString());
    }
    void end() {
        m_daemon.kill();
        m_daemon.waitForFinished();
    }

    [[nodiscard]] QString address() const {
        return QStringLiteral("unix:path=") + QString::fromStdString(socket().string());
    }
    /// A new connection to the bus, as that of another program.
    [[nodiscard]] QDBusConnection connect() {
        static int count = 0;
        m_connections.append(QStringLiteral("private-bus-%1").arg(++count));
        return QDBusConnection::connectToBus(address(), m_connections.last());
    }

private:
    [[nodiscard]] std::filesystem::path socket() const { return m_tree.root() / "bus"; }

    TemporaryTree m_tree;
    QProcess m_daemon;
    QStringList m_connections;
};

} // namespace orvelle
