#pragma once

#include "core/sources/network_source.h"
#include "platform/linux/files.h"
#include "platform/linux/interface_addresses.h"
#include "platform/linux/interface_attributes.h"
#include "platform/linux/interface_watch.h"
#include "platform/linux/proc_net.h"

#include <map>

namespace orvelle::linux_platform {

/// Answers from `proc/net/dev`, `sys/class/net`, `proc/net/route` and the interfaces' addresses. Ports of a
/// bridge or bond are left out. On the running system states, addresses and routes are read only when the
/// kernel announced a change; in another tree they are read each time, the addresses from its file
/// `addresses`. The kind of an interface is read when it first appears.
class LinuxNetworkSource final : public NetworkSource {
public:
    /// `readAddresses` is asked on the running system. While it does not answer there is no reading.
    explicit LinuxNetworkSource(std::filesystem::path root, AddressReader readAddresses = hostAddresses);

    [[nodiscard]] std::optional<std::vector<InterfaceEntry>> read() override;

private:
    struct KnownInterface {
        InterfaceState state;
        std::string uevent{}; ///< as it was when the kind was read
        InterfaceKind kind = InterfaceKind::unknown;
        std::vector<InterfaceAddress> addresses{};
    };

    [[nodiscard]] bool knowsAll(const std::vector<InterfaceCounters>& interfaces) const;
    [[nodiscard]] bool learn(const std::vector<InterfaceCounters>& interfaces);
    [[nodiscard]] KnownInterface lookAt(const OpenFolder& folders, const std::string& name) const;
    void learnRoutes();
    [[nodiscard]] std::optional<std::vector<InterfaceAddress>> readAddresses() const;
    void addEntries(const InterfaceCounters& counters, std::vector<InterfaceEntry>& entries) const;

    std::filesystem::path m_root;
    AddressReader m_readHostAddresses;
    KeptFile m_counters;
    /// Empty when the root is not the running system.
    std::optional<InterfaceWatch> m_watch;
    std::optional<InterfaceWatch> m_routeWatch;
    std::map<std::string, KnownInterface, std::less<>> m_known;
    DefaultRoutes m_defaultRoutes;
    bool m_isStale = true;
    bool m_areRoutesStale = true;
};

} // namespace orvelle::linux_platform
