#include "probe/report/pseudonyms.h"

#include "platform/readable_name.h"

#include <QRegularExpression>

#include <algorithm>
#include <array>

namespace orvelle {
namespace {

using namespace std::string_view_literals;

/// Names longer than this do not keep their length.
constexpr std::size_t longestPlace = 24;

/// Words in paths that tell nothing of a person.
constexpr std::array commonPlaces{
    "boot"sv,       "btrfs"sv,      "cgroup"sv,    "config"sv,     "connections"sv,
    "containerd"sv, "containers"sv, "debug"sv,     "dev"sv,        "devpts"sv,
    "devtmpfs"sv,   "doc"sv,        "docker"sv,    "efi"sv,        "etc"sv,
    "fs"sv,         "fuse"sv,       "gvfs"sv,      "gvfsd-fuse"sv, "home"sv,
    "hostname"sv,   "hosts"sv,      "hugepages"sv, "incus"sv,      "io.containerd.snapshotter.v1.overlayfs"sv,
    "kernel"sv,     "kubelet"sv,    "lib"sv,       "loop"sv,       "local"sv,
    ".local"sv,     "lock"sv,       "lxc"sv,       "lxd"sv,        "mapper"sv,
    "media"sv,      "merged"sv,     "mnt"sv,       "mqueue"sv,     "netns"sv,
    "none"sv,       "opt"sv,        "overlay"sv,   "overlay2"sv,   "pods"sv,
    "portal"sv,     "proc"sv,       "pstore"sv,    "pts"sv,        "resolv.conf"sv,
    "root"sv,       "rootfs"sv,     "run"sv,       "security"sv,   "share"sv,
    "shm"sv,        "snap"sv,       "snapd"sv,     "srv"sv,        "storage"sv,
    "swap"sv,       "sys"sv,        "systemd-1"sv, "tmp"sv,        "tmpfs"sv,
    "tracing"sv,    "udev"sv,       "user"sv,      "usr"sv,        "var"sv};

const QRegularExpression systemInterface(QRegularExpression::anchoredPattern(
    QStringLiteral("(lo|((eth|wlan|wwan|usb|ppp|tun|tap|utun|wg|bond|team|br|bridge|virbr|"
                   "docker|lxcbr|lxdbr|podman|cni|vmnet|vboxnet|"
                   "dummy|sit|ip6tnl|en)[0-9]{1,3})|((en|wl|ww|ib|sl)(P[0-9]+)?(b[0-9]+|[ocs]["
                   "0-9]+|p[0-9]+s[0-9]+)(f[0-9]+)?"
                   "(n?p[0-9]+|n[0-9]+|d[0-9]+)?(u[0-9]+)*(i[0-9]+)?))")));
/// Beginnings that tell the kind of an interface.
constexpr std::array interfaceKinds{"enx"sv, "wlx"sv,  "wwx"sv,  "en"sv,     "wl"sv,     "ww"sv,
                                    "eth"sv, "veth"sv, "br-"sv,  "tun"sv,    "tap"sv,    "utun"sv,
                                    "wg"sv,  "ppp"sv,  "vnet"sv, "bridge"sv, "docker"sv, "virbr"sv};

const QRegularExpression systemDevice(QRegularExpression::anchoredPattern(
    QStringLiteral("((x?v|s|h)d[a-z]{1,3}|nvme[0-9]+(c[0-9]+)?n[0-9]+|mmcblk[0-9]+|mmcblk[0-9]+(boot|gp)|"
                   "mmcblk[0-9]+rpmb|dm-|loop|zram|md|ram|sr|fd|nbd|bcache|zd|rbd|dasd[a-z]{1,3}|"
                   "cciss[/!]c[0-9]+d|pmem|scd)([0-9]{0,4}(p[0-9]{1,3})?)")));
const QRegularExpression systemSupply(QRegularExpression::anchoredPattern(
    QStringLiteral("(AC|ACAD|ADP|BAT|BATT|CMB|axp[0-9]*-battery|battery|ac|usb|ucsi-source-psy-[A-Z0-9:]*)"
                   "[0-9A-Z]{0,4}")));
const QRegularExpression
    hardwareNumber(QStringLiteral("([0-9A-Fa-f]{2}[:_-]){5}[0-9A-Fa-f]{2}|[0-9A-Fa-f]{12,}"));

QString qtText(std::string_view text) {
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

bool isWhole(std::string_view text, const QRegularExpression& expression) {
    return expression.match(qtText(text)).hasMatch();
}

/// One of the 3 x 254 addresses that RFC 5737 reserves; beyond these they repeat.
std::string documentationAddress(int number) {
    constexpr std::array networks{"192.0.2.", "198.51.100.", "203.0.113."};
    constexpr int hosts = 254;
    return networks.at(static_cast<std::size_t>((number - 1) / hosts) % networks.size()) +
           std::to_string((number - 1) % hosts + 1);
}

} // namespace

std::string Pseudonyms::Numbers::of(std::string_view name) {
    const auto position = m_numbers.find(name);
    if (position != m_numbers.end())
        return position->second;
    return m_numbers.emplace(name, std::to_string(m_numbers.size() + 1)).first->second;
}

std::string Pseudonyms::process(std::string_view name) {
    return "process-" + m_processes.of(readableName(name));
}

std::string Pseudonyms::interface(std::string_view name) {
    const std::string shown = readableName(name);
    if (isWhole(shown, systemInterface))
        return shown;
    std::string_view kind = "net";
    for (const std::string_view candidate : interfaceKinds) {
        if (shown.starts_with(candidate)) {
            kind = candidate;
            break;
        }
    }
    // Apart from "br-", whose dash it has already, so that no pseudonym looks like a name of the system.
    return std::string(kind) + (kind.ends_with('-') ? "" : "-") + m_interfaces.of(shown);
}

std::string Pseudonyms::device(std::string_view name) {
    return isWhole(name, systemDevice) ? std::string(name) : "disk-" + m_devices.of(name);
}

std::string Pseudonyms::powerSupply(std::string_view name) {
    return isWhole(name, systemSupply) ? std::string(name) : "supply-" + m_supplies.of(name);
}

std::string Pseudonyms::place(std::string_view name) {
    std::string shown = readableName(name);
    const bool isDots = shown == "." || shown == "..";
    if (shown.empty() || isDots || std::ranges::find(commonPlaces, shown) != commonPlaces.end())
        return shown;
    std::string pseudonym("n");
    pseudonym += m_places.of(shown);
    pseudonym.append(std::max(std::min(shown.size(), longestPlace), pseudonym.size()) - pseudonym.size(),
                     'x');
    return pseudonym;
}

std::string Pseudonyms::path(std::string_view path) {
    std::string result;
    std::size_t start = 0;
    while (start <= path.size()) {
        const std::size_t end = std::min(path.find('/', start), path.size());
        result += place(path.substr(start, end - start));
        if (end < path.size())
            result += '/';
        start = end + 1;
    }
    return result;
}

std::string Pseudonyms::address(std::string_view address) {
    if (address.empty() || address == "::1" || address.starts_with("127."))
        return address.starts_with("127.") ? "127.0.0.1" : std::string(address);
    const std::string number = m_addresses.of(address);
    if (address.find(':') == std::string_view::npos)
        return documentationAddress(std::stoi(number));
    return (address.starts_with("fe80:") ? "fe80::" : "2001:db8::") + number;
}

std::string Pseudonyms::deviceFolder(std::string_view name) {
    const QString shown = qtText(readableName(name));
    std::string result;
    qsizetype end = 0;
    for (const QRegularExpressionMatch& match : hardwareNumber.globalMatch(shown)) {
        result += shown.sliced(end, match.capturedStart() - end).toStdString() + "serial" +
                  m_serials.of(match.captured().toStdString());
        end = match.capturedEnd();
    }
    return result + shown.sliced(end).toStdString();
}

} // namespace orvelle
