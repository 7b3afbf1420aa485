#pragma once

#include "support/waiting.h"

#include <QDBusConnection>
#include <QDBusPendingCall>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace orvelle {

/// A message bus of a test's own, at an address that stays the same when it starts again.
class PrivateBus {
public:
    PrivateBus() {
        QFile config(m_folder.filePath(QStringLiteral("bus.conf")));
        EXPECT_TRUE(config.open(QIODevice::WriteOnly));
        config.write("<busconfig><type>session</type><listen>" + address().toUtf8() +
                     "</listen><policy context=\"default\"><allow send_destination=\"*\"/>"
                     "<allow receive_sender=\"*\"/><allow own=\"*\"/></policy></busconfig>");
        config.close();
        start();
    }
    ~PrivateBus() { stop(); }
    PrivateBus(const PrivateBus&) = delete;
    PrivateBus& operator=(const PrivateBus&) = delete;

    [[nodiscard]] QString address() const {
        return QStringLiteral("unix:path=") + m_folder.filePath(QStringLiteral("socket"));
    }

    void start() {
        QFile::remove(m_folder.filePath(QStringLiteral("socket")));
        m_daemon.start(QStringLiteral("dbus-daemon"),
                       {QStringLiteral("--config-file=") + m_folder.filePath(QStringLiteral("bus.conf")),
                        QStringLiteral("--nofork"), QStringLiteral("--nopidfile"),
                        QStringLiteral("--print-address")});
        ASSERT_TRUE(m_daemon.waitForReadyRead(static_cast<int>(patience.count())));
    }
    void stop() {
        m_daemon.kill();
        m_daemon.waitForFinished();
    }

private:
    QTemporaryDir m_folder;
    QProcess m_daemon;
};

/// A connection to a bus. It is closed at the end.
class BusConnection {
public:
    explicit BusConnection(const QString& address)
        : m_name(QStringLiteral("test-%1").arg(++count()))
        , m_connection(QDBusConnection::connectToBus(address, m_name)) {
        EXPECT_TRUE(m_connection.isConnected()) << qPrintable(m_connection.lastError().message());
    }
    ~BusConnection() { QDBusConnection::disconnectFromBus(m_name); }
    BusConnection(const BusConnection&) = delete;
    BusConnection& operator=(const BusConnection&) = delete;

    [[nodiscard]] QDBusConnection& operator*() { return m_connection; }
    [[nodiscard]] QDBusConnection* operator->() { return &m_connection; }

    /// Calls a method and handles events until the answer is there.
    [[nodiscard]] QDBusMessage call(const QString& service, const QString& path, const QString& interface,
                                    const QString& method, const QVariantList& arguments = {}) {
        QDBusMessage message = QDBusMessage::createMethodCall(service, path, interface, method);
        message.setArguments(arguments);
        const QDBusPendingCall call = m_connection.asyncCall(message);
        EXPECT_TRUE(waitUntil([&call] { return call.isFinished(); }));
        return call.reply();
    }

private:
    static int& count() {
        static int number = 0;
        return number;
    }

    QString m_name;
    QDBusConnection m_connection;
};

} // namespace orvelle
