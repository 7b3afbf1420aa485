#pragma once

#include <QDBusConnection>
#include <QObject>
#include <QString>

#include <memory>

namespace orvelle {

/// A connection with this name to the bus at an address, empty for that of the user's session. Without a name
/// it is the connection to the user's session that all parts of the program share. Waits for the bus.
[[nodiscard]] QDBusConnection openBus(const QString& name, const QString& address);

/// Opens a connection to a message bus in a thread, because a bus that does not answer holds up whoever
/// connects to it. Qt keeps the connection under its name. Connections open in the order in which they were
/// asked for. Main thread only.
class BusOpening final : public QObject {
    Q_OBJECT

public:
    /// Begins; see `openBus` for the name and the address.
    explicit BusOpening(const QString& name = {}, const QString& address = {});
    /// A connection that opens later is closed at once, unless it is shared.
    ///
    /// Waits for the thread, because Qt must not connect while the process ends. A bus that does not answer
    /// must not keep the process from ending either: the thread is stuck then, and does nothing.
    ~BusOpening() override;
    BusOpening(const BusOpening&) = delete;
    BusOpening& operator=(const BusOpening&) = delete;

Q_SIGNALS:
    void opened();
    /// Why it could not be opened.
    void failed(const QString& reason);

private:
    class Attempt;

    void finish();

    QString m_name;
    std::shared_ptr<Attempt> m_attempt; ///< null when it has been reported
};

} // namespace orvelle
