#pragma once

#include "core/published.h"
#include "core/sources/clock.h"
#include "core/sources/network_source.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QVariant>

#include <map>
#include <optional>

namespace orvelle {

/// One network interface with its cumulative counters, its speeds since the previous sample and its
/// addresses.
struct NetworkInterfaceInfo {
    Q_GADGET
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QString displayName MEMBER displayName)
    Q_PROPERTY(quint64 bytesIn MEMBER bytesIn)
    Q_PROPERTY(quint64 bytesOut MEMBER bytesOut)
    Q_PROPERTY(double downloadSpeed MEMBER downloadSpeed)
    Q_PROPERTY(double uploadSpeed MEMBER uploadSpeed)
    Q_PROPERTY(QVariant ipv4Address READ ipv4AddressValue)
    Q_PROPERTY(QVariant ipv6Address READ ipv6AddressValue)
public:
    QString name; ///< the system's name, for example "en0"
    /// `interfaceDisplayName`, with the name behind it where two of a known kind would read alike.
    QString displayName;
    quint64 bytesIn = 0;                ///< bytes received, cumulative as the system reports them
    quint64 bytesOut = 0;               ///< bytes sent, likewise
    double downloadSpeed = 0;           ///< bytes per second received since the previous sample
    double uploadSpeed = 0;             ///< bytes per second sent since the previous sample
    std::optional<QString> ipv4Address; ///< in numeric form
    std::optional<QString> ipv6Address; ///< in numeric form, never link-local
    InterfaceKind kind = InterfaceKind::unknown;
    /// Metric of the IPv4 default route that leads here; nothing without such a route and when unknown.
    std::optional<quint32> defaultRouteMetric;

    [[nodiscard]] QVariant ipv4AddressValue() const;
    [[nodiscard]] QVariant ipv6AddressValue() const;

    bool operator==(const NetworkInterfaceInfo&) const = default;
};

/// The name of an interface for display: by its kind; when that is unknown by the prefix of its name, else
/// the name itself.
[[nodiscard]] QString interfaceDisplayName(const QString& name, InterfaceKind kind = InterfaceKind::unknown);

/// Samples the network interfaces that are up, loopbacks left out. Main thread only.
class NetworkMonitor : public QObject {
    Q_OBJECT
    Q_PROPERTY(QList<orvelle::NetworkInterfaceInfo> interfaces READ interfaces NOTIFY interfacesChanged)
    Q_PROPERTY(double totalDownloadSpeed READ totalDownloadSpeed NOTIFY totalDownloadSpeedChanged)
    Q_PROPERTY(double totalUploadSpeed READ totalUploadSpeed NOTIFY totalUploadSpeedChanged)
    Q_PROPERTY(quint64 totalBytesIn READ totalBytesIn NOTIFY totalBytesInChanged)
    Q_PROPERTY(quint64 totalBytesOut READ totalBytesOut NOTIFY totalBytesOutChanged)
    Q_PROPERTY(QList<double> downloadHistory READ downloadHistory NOTIFY downloadHistoryChanged)
    Q_PROPERTY(QList<double> uploadHistory READ uploadHistory NOTIFY uploadHistoryChanged)
    Q_PROPERTY(QString primaryIPv4 READ primaryIPv4 NOTIFY primaryIPv4Changed)
    Q_PROPERTY(QString primaryIPv6 READ primaryIPv6 NOTIFY primaryIPv6Changed)

public:
    using InterfaceInfo = NetworkInterfaceInfo;
    static constexpr qsizetype maxHistoryCount = MetricHistory::maxHistoryCount;

    NetworkMonitor(NetworkSource& source, WallClock now, QObject* parent = nullptr);

    /// The interfaces that carried bytes or have an IPv4 address, sorted by name.
    [[nodiscard]] const QList<InterfaceInfo>& interfaces() const { return m_interfaces; }
    /// Bytes per second over all interfaces; 0 until two samples were taken.
    [[nodiscard]] double totalDownloadSpeed() const { return m_totalDownloadSpeed; }
    [[nodiscard]] double totalUploadSpeed() const { return m_totalUploadSpeed; }
    /// Sum of the interfaces' cumulative counters, in bytes.
    [[nodiscard]] quint64 totalBytesIn() const { return m_totalBytesIn; }
    [[nodiscard]] quint64 totalBytesOut() const { return m_totalBytesOut; }
    /// The total speeds of the last samples, oldest first, at most `maxHistoryCount`.
    [[nodiscard]] const QList<double>& downloadHistory() const { return m_downloadHistory; }
    [[nodiscard]] const QList<double>& uploadHistory() const { return m_uploadHistory; }
    /// Addresses of that listed interface with an IPv4 address to which the default route of the lowest
    /// metric leads, or of the first one; "N/A" where there is none. While no interface has an IPv4 address
    /// both stay what they were.
    [[nodiscard]] const QString& primaryIPv4() const { return m_primaryIPv4; }
    [[nodiscard]] const QString& primaryIPv6() const { return m_primaryIPv6; }

    /// Publishes the present state. When the interface list cannot be read or is empty nothing changes.
    void update();

Q_SIGNALS:
    void interfacesChanged();
    void totalDownloadSpeedChanged();
    void totalUploadSpeedChanged();
    void totalBytesInChanged();
    void totalBytesOutChanged();
    void downloadHistoryChanged();
    void uploadHistoryChanged();
    void primaryIPv4Changed();
    void primaryIPv6Changed();

private:
    /// By name, so that the order of everything derived is the names' order.
    using InterfacesByName = std::map<QString, InterfaceInfo>;
    struct Bytes {
        quint64 in = 0;
        quint64 out = 0;
        qint64 seenInSample = 0;
    };

    void measureSpeeds(InterfacesByName& interfaces, WallTime now);
    /// Forgets of the interfaces that are gone all but those that left last.
    void forgetLongGone(std::size_t presentCount);
    void publishInterfaces(const InterfacesByName& interfaces);
    void publishPrimaryAddresses();

    NetworkSource& m_source;
    WallClock m_now;
    QList<InterfaceInfo> m_interfaces;
    double m_totalDownloadSpeed = 0;
    double m_totalUploadSpeed = 0;
    quint64 m_totalBytesIn = 0;
    quint64 m_totalBytesOut = 0;
    QList<double> m_downloadHistory;
    QList<double> m_uploadHistory;
    QString m_primaryIPv4;
    QString m_primaryIPv6;
    /// Counters of the last sample that saw the interface. An interface that comes back is measured from
    /// there.
    std::map<QString, Bytes> m_previousBytes;
    qint64 m_sample = 0;
    std::optional<WallTime> m_lastUpdateTime;
};

} // namespace orvelle
