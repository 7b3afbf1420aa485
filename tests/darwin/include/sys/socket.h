#pragma once

// Simulated macOS: socket addresses, which begin with their own length here.
#include <cstdint>

using sa_family_t = std::uint8_t;
using socklen_t = std::uint32_t;

constexpr sa_family_t AF_INET = 2;
constexpr sa_family_t AF_LINK = 18;
constexpr sa_family_t AF_INET6 = 30;

struct sockaddr {
    std::uint8_t sa_len;
    sa_family_t sa_family;
    char sa_data[14];
};
