#pragma once

#include "support/waiting.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <gtest/gtest.h>

namespace orvelle {

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
