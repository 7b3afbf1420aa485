#include "platform/linux/linux_network_source.h"

#include "platform/linux/files.h"
#include "platform/linux/interface_attributes.h"
#include "platform/readable_name.h"

#include <algorithm>

namespace orvelle::linux_platform {
namespace {

/// The kernel lists the default routes first, and a router may have a million others.
constexpr std::size_t readOfRoutes = std::size_t{64} << 10;

InterfaceEntry withAddress(InterfaceEntry entry, const InterfaceAddress& address) {
    const bool isIPv4 = address.family == InterfaceAddress::Family::ipv4;
    (isIPv4 ? entry.ipv4Address : entry.ipv6Address) = address.text;
    return entry;
}

} // namespace

LinuxNetworkSource::LinuxNetworkSource(std::filesystem::path root, AddressReader readAddresses)
    : m_root(std::move(root))
    , m_readHostAddresses(std::move(readAddresses))
    , m_counters(m_root / "proc/net/dev", KeptFile::Layout::records) {
    if (!isHostRoot(m_root))
        return;
    m_watch.emplace(InterfaceWatch::Subject::interfacesAndAddresses);
    m_routeWatch.emplace(InterfaceWatch::Subject::ipv4Routes);
}

std::optional<std::vector<InterfaceEntry>> LinuxNetworkSource::read() {
    // Asked before anything is read, so that a change in between is announced to the next reading.
    if (!m_watch || m_watch->mayHaveChanged())
        m_isStale = true;
    if (!m_routeWatch || m_routeWatch->mayHaveChanged())
        m_areRoutesStale = true;
    const std::optional<std::string_view> text = m_counters.read();
    if (!text)
        return std::nullopt;
    const std::vector<InterfaceCounters> interfaces = parseNetDev(*text);
    if ((m_isStale || !knowsAll(interfaces)) && !learn(interfaces))
        return std::nullopt;
    if (m_areRoutesStale)
        learnRoutes();

    std::vector<InterfaceEntry> entries;
    for (const InterfaceCounters& counters : interfaces)
        addEntries(counters, entries);
    return entries;
}

void LinuxNetworkSource::addEntries(const InterfaceCounters& counters,
                                    std::vector<InterfaceEntry>& entries) const {
    const KnownInterface& known = m_known.find(counters.name)->second;
    InterfaceEntry entry;
    entry.name = readableName(counters.name);
    if (known.state.isPort || entry.name.empty())
        return;
    entry.isUp = known.state.isUp;
    entry.isLoopback = known.state.isLoopback;
    entry.kind = known.kind;
    const auto route = m_defaultRoutes.find(counters.name);
    if (route != m_defaultRoutes.end())
        entry.defaultRouteMetric = route->second;
    for (const InterfaceAddress& address : known.addresses)
        entries.push_back(withAddress(entry, address));
    entry.bytesIn = counters.bytesIn;
    entry.bytesOut = counters.bytesOut;
    entries.push_back(std::move(entry));
}

bool LinuxNetworkSource::knowsAll(const std::vector<InterfaceCounters>& interfaces) const {
    return std::ranges::all_of(interfaces, [this](const InterfaceCounters& counters) {
        return m_known.find(counters.name) != m_known.end();
    });
}

/// Whether everything could be learnt. Otherwise what was known stays, and the next reading tries again.
bool LinuxNetworkSource::learn(const std::vector<InterfaceCounters>& interfaces) {
    m_isStale = true;
    std::optional<std::vector<InterfaceAddress>> addresses = readAddresses();
    if (!addresses)
        return false;
    std::map<std::string, KnownInterface, std::less<>> known;
    const OpenFolder folders(m_root / "sys/class/net");
    for (const InterfaceCounters& counters : interfaces) {
        const std::string name(counters.name);
        known.insert_or_assign(name, lookAt(folders, name));
    }
    for (InterfaceAddress& address : *addresses) {
        const auto position = known.find(address.interfaceName);
        if (position != known.end())
            position->second.addresses.push_back(std::move(address));
    }
    m_known = std::move(known);
    m_isStale = false;
    // The kernel removes the routes of a link that goes down without announcing it.
    m_areRoutesStale = true;
    return true;
}

LinuxNetworkSource::KnownInterface LinuxNetworkSource::lookAt(const OpenFolder& folders,
                                                              const std::string& name) const {
    OpenFolder folder(folders, name);
    KnownInterface seen{.state = readInterfaceState(folder, name)};
    if (seen.state.isPort)
        return seen;
    seen.uevent = readInterfaceEvent(folder);
    const auto before = m_known.find(name);
    const bool isKnown =
        before != m_known.end() && !seen.uevent.empty() && before->second.uevent == seen.uevent;
    seen.kind = isKnown ? before->second.kind : readInterfaceKind(folder, seen.uevent);
    return seen;
}

void LinuxNetworkSource::learnRoutes() {
    const std::optional<std::string> text = readFile(m_root / "proc/net/route", readOfRoutes);
    m_defaultRoutes = parseDefaultRoutes(text.value_or(""));
    m_areRoutesStale = !text;
}

std::optional<std::vector<InterfaceAddress>> LinuxNetworkSource::readAddresses() const {
    if (m_watch)
        return m_readHostAddresses();
    return parseAddresses(readFile(m_root / "addresses").value_or(""));
}

} // namespace orvelle::linux_platform
