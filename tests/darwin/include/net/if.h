#pragma once

// Simulated macOS: interface flags.
constexpr int IFF_UP = 0x1;
constexpr int IFF_LOOPBACK = 0x8;
