#pragma once

#include <map>
#include <string>
#include <string_view>

namespace orvelle {

/// Stands-in for private names, so that nobody can tell from a report whose machine it describes. The same
/// name has the same pseudonym everywhere. A pseudonym is plain ASCII.
class Pseudonyms {
public:
    [[nodiscard]] std::string process(std::string_view name);
    /// Names that the system gives by itself, such as "wlp3s0", stay: they tell the kind. One that may hold a
    /// hardware address or a word of the user's keeps at most the beginning that tells the kind.
    [[nodiscard]] std::string interface(std::string_view name);
    /// A block device. "sda1", "dm-2" and the like stay.
    [[nodiscard]] std::string device(std::string_view name);
    [[nodiscard]] std::string powerSupply(std::string_view name);
    /// One component of a path, or a volume's label. Those that every machine has stay: "home", "boot".
    /// Another one keeps its length where it can, because the length of a path may decide which volume is
    /// shown.
    [[nodiscard]] std::string place(std::string_view name);
    /// Every component of a path.
    [[nodiscard]] std::string path(std::string_view path);
    /// A numeric address, replaced by one of those that are reserved for documentation. Loopback addresses
    /// stay, and a link-local address stays link-local.
    [[nodiscard]] std::string address(std::string_view address);
    /// A folder of sysfs that stands for a device. Hardware addresses and serial numbers are replaced.
    [[nodiscard]] std::string deviceFolder(std::string_view name);

private:
    /// Numbers names from 1 in the order in which they appear.
    class Numbers {
    public:
        [[nodiscard]] std::string of(std::string_view name);

    private:
        std::map<std::string, std::string, std::less<>> m_numbers;
    };

    Numbers m_processes;
    Numbers m_interfaces;
    Numbers m_devices;
    Numbers m_supplies;
    Numbers m_places;
    Numbers m_addresses;
    Numbers m_serials;
};

} // namespace orvelle
