#pragma once

#include "shell/painted/bus_opening.h"

#include <QDBusServiceWatcher>
#include <QObject>
#include <QTimer>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>

namespace orvelle {

/// The name of the tray on the bus.
[[nodiscard]] QString trayService();

/// Which bus to use, and what to do without it.
struct TrayBus {
    QString address = {}; ///< of the bus; empty for that of the user's session
    /// Called with the reason, in words for the user, when there is no bus or no tray. It may be called more
    /// than once.
    std::function<void(const QString& reason)> trayMissing = [](const QString&) {};
    /// How often to look for a bus that is not there.
    std::chrono::milliseconds retryInterval{15'000};
};

/// The connection of one icon to the bus, its own because trays find the objects of an icon by the name of
/// its connection. It registers the icon with the tray, and again when the tray or the bus comes back.
/// Nothing here waits for the bus or the tray. Main thread only.
class TrayConnection final : public QObject {
    Q_OBJECT

public:
    static constexpr auto itemPath = QLatin1StringView("/StatusNotifierItem");

    /// The adaptors of `item` and `menu`, which must outlive the object, are what the tray sees.
    TrayConnection(QObject& item, QObject& menu, TrayBus bus);
    ~TrayConnection() override;
    TrayConnection(const TrayConnection&) = delete;
    TrayConnection& operator=(const TrayConnection&) = delete;

    /// The icon's name on the bus.
    [[nodiscard]] const QString& serviceName() const { return m_serviceName; }

private Q_SLOTS:
    void handleDisconnect();

private:
    void connectToBus();
    void useConnection();
    void reportAndRetry(const QString& reason);
    void leaveBus();
    void watchTray(const QDBusConnection& connection);
    void registerItem();

    QObject& m_item;
    QObject& m_menu;
    TrayBus m_bus;
    QString m_serviceName;
    std::unique_ptr<QDBusServiceWatcher> m_trayWatcher; ///< null without a connection
    QTimer m_retry;
    std::optional<BusOpening> m_opening; ///< the last one
};

} // namespace orvelle
