#pragma once

#include <chrono>
#include <cstdint>

namespace orvelle::wayland_client {

/// The milliseconds of a steady clock, for the events of devices.
inline std::uint32_t timeStamp() {
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return static_cast<std::uint32_t>(std::chrono::duration_cast<std::chrono::milliseconds>(now).count());
}

} // namespace orvelle::wayland_client
