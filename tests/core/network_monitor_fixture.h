#pragma once

#include "core/network_monitor.h"
#include "platform/replay/fake_sources.h"

#include <QStringList>
#include <gtest/gtest.h>

namespace orvelle {

/// A monitor over entries that the test sets.
class NetworkMonitorTest : public ::testing::Test {
protected:
    FakeNetworkSource source;
    FakeClock clock;
    NetworkMonitor monitor{source, clock.reader()};

    void updateWith(std::vector<InterfaceEntry> entries) {
        source.entries = std::move(entries);
        monitor.update();
    }
};

inline InterfaceEntry up(std::string name, std::uint64_t bytesIn = 0, std::uint64_t bytesOut = 0) {
    return {.name = std::move(name), .isUp = true, .bytesIn = bytesIn, .bytesOut = bytesOut};
}

inline InterfaceEntry withIPv4(std::string name, std::string address) {
    return {.name = std::move(name), .isUp = true, .ipv4Address = std::move(address)};
}

inline InterfaceEntry withIPv6(std::string name, std::string address) {
    return {.name = std::move(name), .isUp = true, .ipv6Address = std::move(address)};
}

inline QStringList namesOf(const QList<NetworkInterfaceInfo>& interfaces) {
    QStringList names;
    for (const NetworkInterfaceInfo& info : interfaces)
        names.append(info.name);
    return names;
}

} // namespace orvelle
