#pragma once

// Simulated macOS: addresses as text.
#include <sys/socket.h>

constexpr int NI_MAXHOST = 1025;
constexpr int NI_NUMERICHOST = 2;
constexpr int EAI_FAMILY = 5;
constexpr int EAI_OVERFLOW = 14;

extern "C" int getnameinfo(const sockaddr* address, socklen_t length, char* host, socklen_t hostSize,
                           char* service, socklen_t serviceSize, int flags) __asm__("simulated_getnameinfo");
