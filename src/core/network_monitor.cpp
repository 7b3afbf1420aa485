#include "core/network_monitor.h"

#include "core/checked.h"
#include "core/published.h"

#include <algorithm>
#include <array>

namespace orvelle {
namespace {

using namespace Qt::StringLiterals;

constexpr QLatin1StringView noAddress = "N/A"_L1;

/// Every container that starts has an interface of a new name, and the program runs for years.
constexpr std::size_t rememberedInterfaces = 256;

struct DisplayName {
    QLatin1StringView prefix;
    QLatin1StringView name;
};

/// The first prefix that fits counts, so a longer one stands before a shorter one.
constexpr std::array displayNames{
    DisplayName{"en0"_L1, "Wi-Fi"_L1},
    DisplayName{"en"_L1, "Ethernet"_L1},
    DisplayName{"bridge"_L1, "Bridge"_L1},
    DisplayName{"awdl"_L1, "AWDL"_L1},
    DisplayName{"llw"_L1, "Low Latency WLAN"_L1},
    DisplayName{"utun"_L1, "VPN Tunnel"_L1},
    DisplayName{"pdp_ip"_L1, "Cellular"_L1},
};

void addEntry(NetworkInterfaceInfo& info, const InterfaceEntry& entry) {
    if (!entry.ipv4Address.empty())
        info.ipv4Address = QString::fromStdString(entry.ipv4Address);
    if (!entry.ipv6Address.empty() && !entry.ipv6Address.starts_with("fe80"))
        info.ipv6Address = QString::fromStdString(entry.ipv6Address);
    info.bytesIn = checkedAdd(info.bytesIn, quint64{entry.bytesIn});
    info.bytesOut = checkedAdd(info.bytesOut, quint64{entry.bytesOut});
}

std::map<QString, NetworkInterfaceInfo> groupedByName(const std::vector<InterfaceEntry>& entries) {
    std::map<QString, NetworkInterfaceInfo> interfaces;
    for (const InterfaceEntry& entry : entries) {
        if (!entry.isUp || entry.isLoopback)
            continue;
        const QString name = QString::fromStdString(entry.name);
        const auto [position, isNew] = interfaces.try_emplace(name);
        if (isNew) {
            position->second.name = name;
            position->second.displayName = interfaceDisplayName(name, entry.kind);
            position->second.kind = entry.kind;
            position->second.defaultRouteMetric = entry.defaultRouteMetric;
        }
        addEntry(position->second, entry);
    }
    return interfaces;
}

/// An interface that never carried a byte and has no address is of no interest to the user.
bool isListed(const NetworkInterfaceInfo& info) {
    return info.bytesIn != 0 || info.bytesOut != 0 || info.ipv4Address.has_value();
}

/// Appends the names of interfaces of a known kind that would otherwise read alike.
void tellApart(QList<NetworkInterfaceInfo>& interfaces) {
    std::map<QString, int> counts;
    for (const NetworkInterfaceInfo& info : interfaces)
        ++counts[info.displayName];
    for (NetworkInterfaceInfo& info : interfaces) {
        if (info.kind != InterfaceKind::unknown && counts[info.displayName] > 1)
            info.displayName += u" (%1)"_s.arg(info.name);
    }
}

/// The lowest rank comes first: any default route before none.
quint64 primaryRank(const NetworkInterfaceInfo& info) {
    constexpr quint64 withoutRoute = quint64{1} << 32;
    return info.defaultRouteMetric ? *info.defaultRouteMetric : withoutRoute;
}

/// The value of a property that may be absent: the text itself, or null.
QVariant valueOrNull(const std::optional<QString>& text) {
    return text ? QVariant(*text) : QVariant::fromValue(nullptr);
}

} // namespace

QVariant NetworkInterfaceInfo::ipv4AddressValue() const {
    return valueOrNull(ipv4Address);
}

QVariant NetworkInterfaceInfo::ipv6AddressValue() const {
    return valueOrNull(ipv6Address);
}

QString interfaceDisplayName(const QString& name, InterfaceKind kind) {
    switch (kind) {
    case InterfaceKind::wifi:
        return u"Wi-Fi"_s;
    case InterfaceKind::ethernet:
        return u"Ethernet"_s;
    case InterfaceKind::bridge:
        return u"Bridge"_s;
    case InterfaceKind::vpnTunnel:
        return u"VPN Tunnel"_s;
    case InterfaceKind::cellular:
        return u"Cellular"_s;
    case InterfaceKind::unknown:
        break;
    }
    for (const DisplayName& entry : displayNames) {
        if (name.startsWith(entry.prefix))
            return entry.name;
    }
    return name;
}

NetworkMonitor::NetworkMonitor(NetworkSource& source, WallClock now, QObject* parent)
    : QObject(parent)
    , m_source(source)
    , m_now(std::move(now))
    , m_primaryIPv4(noAddress)
    , m_primaryIPv6(noAddress) {}

void NetworkMonitor::update() {
    const std::optional<std::vector<InterfaceEntry>> entries = m_source.read();
    if (!entries || entries->empty())
        return;
    InterfacesByName interfaces = groupedByName(*entries);
    measureSpeeds(interfaces, m_now());
    publishInterfaces(interfaces);
    publishPrimaryAddresses();
    MetricHistory::append(m_downloadHistory, m_totalDownloadSpeed, maxHistoryCount);
    Q_EMIT downloadHistoryChanged();
    MetricHistory::append(m_uploadHistory, m_totalUploadSpeed, maxHistoryCount);
    Q_EMIT uploadHistoryChanged();
}

void NetworkMonitor::measureSpeeds(InterfacesByName& interfaces, WallTime now) {
    const double elapsedSeconds = m_lastUpdateTime ? secondsBetween(*m_lastUpdateTime, now) : 0;
    m_sample = checkedAdd(m_sample, qint64{1});
    for (auto& [name, info] : interfaces) {
        const auto previous = m_previousBytes.find(name);
        if (previous != m_previousBytes.end() && elapsedSeconds > 0) {
            const Bytes& before = previous->second;
            info.downloadSpeed = static_cast<double>(counterDelta(info.bytesIn, before.in)) / elapsedSeconds;
            info.uploadSpeed = static_cast<double>(counterDelta(info.bytesOut, before.out)) / elapsedSeconds;
        }
        m_previousBytes[name] = {.in = info.bytesIn, .out = info.bytesOut, .seenInSample = m_sample};
    }
    m_lastUpdateTime = now;
    forgetLongGone(interfaces.size());
}

void NetworkMonitor::forgetLongGone(std::size_t presentCount) {
    while (m_previousBytes.size() > presentCount + rememberedInterfaces) {
        m_previousBytes.erase(std::ranges::min_element(
            m_previousBytes, {}, [](const auto& nameAndBytes) { return nameAndBytes.second.seenInSample; }));
    }
}

void NetworkMonitor::publishInterfaces(const InterfacesByName& interfaces) {
    QList<InterfaceInfo> listed;
    double downloadSpeed = 0;
    double uploadSpeed = 0;
    quint64 bytesIn = 0;
    quint64 bytesOut = 0;
    for (const auto& [name, info] : interfaces) {
        downloadSpeed += info.downloadSpeed;
        uploadSpeed += info.uploadSpeed;
        bytesIn = checkedAdd(bytesIn, info.bytesIn);
        bytesOut = checkedAdd(bytesOut, info.bytesOut);
        if (isListed(info))
            listed.append(info);
    }
    tellApart(listed);
    publish(this, m_interfaces, std::move(listed), &NetworkMonitor::interfacesChanged);
    publish(this, m_totalDownloadSpeed, downloadSpeed, &NetworkMonitor::totalDownloadSpeedChanged);
    publish(this, m_totalUploadSpeed, uploadSpeed, &NetworkMonitor::totalUploadSpeedChanged);
    publish(this, m_totalBytesIn, bytesIn, &NetworkMonitor::totalBytesInChanged);
    publish(this, m_totalBytesOut, bytesOut, &NetworkMonitor::totalBytesOutChanged);
}

void NetworkMonitor::publishPrimaryAddresses() {
    const InterfaceInfo* primary = nullptr;
    for (const InterfaceInfo& info : m_interfaces) {
        if (info.ipv4Address && (primary == nullptr || primaryRank(info) < primaryRank(*primary)))
            primary = &info;
    }
    if (primary == nullptr)
        return;
    publish(this, m_primaryIPv4, primary->ipv4Address.value_or(noAddress),
            &NetworkMonitor::primaryIPv4Changed);
    publish(this, m_primaryIPv6, primary->ipv6Address.value_or(noAddress),
            &NetworkMonitor::primaryIPv6Changed);
}

} // namespace orvelle
