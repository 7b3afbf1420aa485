#pragma once

#include <array>
#include <cstdint>
#include <vector>

/// Socket addresses as the simulated system stores them: length, family, then the family's own bytes.
namespace orvelle::simulated {

[[nodiscard]] inline std::vector<std::uint8_t> ipv4Address(std::array<std::uint8_t, 4> parts) {
    std::vector<std::uint8_t> address{16, 2, 0, 0};
    address.insert(address.end(), parts.begin(), parts.end());
    address.resize(16);
    return address;
}

[[nodiscard]] inline std::vector<std::uint8_t> ipv6Address(std::array<std::uint16_t, 8> groups) {
    std::vector<std::uint8_t> address{28, 30, 0, 0, 0, 0, 0, 0};
    for (const std::uint16_t group : groups) {
        address.push_back(static_cast<std::uint8_t>(group >> 8));
        address.push_back(static_cast<std::uint8_t>(group & 0xff));
    }
    address.resize(28);
    return address;
}

[[nodiscard]] inline std::vector<std::uint8_t> linkAddress() {
    std::vector<std::uint8_t> address{20, 18};
    address.resize(20);
    return address;
}

} // namespace orvelle::simulated
