#pragma once

#include "support/temporary_tree.h"

#include <QDBusConnection>
#include <QProcess>
#include <gtest/gtest.h>

namespace orvelle {

/// A message bus of the test's own, from a daemon that ends with the object.
class PrivateBus {
public:
    PrivateBus() {
        m_daemon.start(QStringLiteral("dbus-daemon"),
                       {QStringLiteral("--session"), QStringLiteral("--nofork"),
                        QStringLiteral("--nopidfile"),
                        QStringLiteral("--address=unix:dir=") + QString::fromStdString(m_tree.root()),
                        QStringLiteral("--print-address")});
        if (!m_daemon.waitForReadyRead(20'000))
            ADD_FAILURE() << "no message bus: " << qPrintable(m_daemon.errorString());
        m_address = QString::fromUtf8(m_daemon.readLine()).trimmed();
    }
    ~PrivateBus() {
        for (const QString& name : m_connections)
            QDBusConnection::disconnectFromBus(name);
        end();
    }
    PrivateBus(const PrivateBus&) = delete;
    PrivateBus& operator=(const PrivateBus&) = delete;

    /// A new connection to the bus, as that of another program.
    [[nodiscard]] QDBusConnection connect() {
        static int count = 0;
        m_connections.append(QStringLiteral("private-bus-%1").arg(++count));
        return QDBusConnection::connectToBus(m_address, m_connections.last());
    }
    void end() {
        m_daemon.kill();
        m_daemon.waitForFinished();
    }

private:
    TemporaryTree m_tree;
    QProcess m_daemon;
    QString m_address;
    QStringList m_connections;
};

} // namespace orvelle
