#pragma once

#include "bus_connection.h"
#include "shell/tray/status_notifier_item.h"
#include "shell/tray/tray_connection.h"
#include "shell/tray/tray_menu.h"
#include "support/private_bus.h"

#include <QDBusContext>
#include <QDBusMessage>

namespace orvelle {

/// A desktop's tray on the bus, which records what registers and what is announced.
class TrayDouble : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.StatusNotifierWatcher")

public:
    explicit TrayDouble(const QString& address)
        : m_connection(address) {
        EXPECT_TRUE(m_connection->registerObject(QStringLiteral("/StatusNotifierWatcher"), this,
                                                 QDBusConnection::ExportAllSlots));
        EXPECT_TRUE(m_connection->registerService(trayService()));
        m_connection->connect(QString(), TrayConnection::itemPath, itemInterface(), QString(), this,
                              SLOT(recordSignal(QDBusMessage)));
        m_connection->connect(QString(), TrayMenu::path, menuInterface(), QString(), this,
                              SLOT(recordSignal(QDBusMessage)));
    }

    static QString itemInterface() { return QStringLiteral("org.kde.StatusNotifierItem"); }
    static QString menuInterface() { return QStringLiteral("com.canonical.dbusmenu"); }

    /// Waits until so many icons have registered in all.
    [[nodiscard]] bool waitForIcons(qsizetype count) {
        return waitUntil([this, count] { return registered.size() >= count; });
    }

    /// Calls a method of an icon or, by its interface, of its menu.
    [[nodiscard]] QDBusMessage callItem(const QString& service, const QString& method,
                                        const QVariantList& arguments = {}) {
        return m_connection.call(service, TrayConnection::itemPath, itemInterface(), method, arguments);
    }
    [[nodiscard]] QDBusMessage callMenu(const QString& service, const QString& method,
                                        const QVariantList& arguments = {}) {
        return m_connection.call(service, TrayMenu::path, menuInterface(), method, arguments);
    }
    /// The properties of an icon.
    [[nodiscard]] QVariantMap properties(const QString& service) {
        const QDBusMessage answer = m_connection.call(service, TrayConnection::itemPath,
                                                      QStringLiteral("org.freedesktop.DBus.Properties"),
                                                      QStringLiteral("GetAll"), {itemInterface()});
        EXPECT_EQ(answer.type(), QDBusMessage::ReplyMessage) << qPrintable(answer.errorMessage());
        return qdbus_cast<QVariantMap>(answer.arguments().value(0));
    }
    [[nodiscard]] QString toolTipText(const QString& service) {
        return qdbus_cast<TrayToolTip>(properties(service).value(QStringLiteral("ToolTip"))).text;
    }
    /// Everything that icons have sent so far has been recorded afterwards.
    void catchUp(const QString& service) { static_cast<void>(properties(service)); }

    [[nodiscard]] BusConnection& connection() { return m_connection; }

    QStringList registered; ///< the names of the icons, in this order
    QStringList announced;  ///< the names of the signals, in this order
    QList<QDBusMessage> signalled;
    bool answersWithError = false;

public Q_SLOTS:
    // NOLINTNEXTLINE(readability-identifier-naming): the name on D-Bus
    void RegisterStatusNotifierItem(const QString& service) {
        registered.append(service);
        if (answersWithError)
            sendErrorReply(QDBusError::Failed, QStringLiteral("no room"));
    }
    void recordSignal(const QDBusMessage& message) {
        announced.append(message.member());
        signalled.append(message);
    }

private:
    BusConnection m_connection;
};

} // namespace orvelle
