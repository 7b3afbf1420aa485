#pragma once

#include "platform/linux/files.h"

#include <chrono>
#include <functional>
#include <vector>

namespace orvelle::linux_platform {

/// Time that never steps back.
using MonotonicClock = std::function<std::chrono::steady_clock::time_point()>;

/// Decides when a device may be read without being woken or kept awake (Documentation/power/runtime_pm.rst).
/// A suspended device would be resumed by the reading of a value. One that is awake and falls asleep after
/// some idle time would never do so if it were read more often than that.
class SleepGuard {
public:
    enum class Advice {
        read, ///< awake: read it now
        wait, ///< awake, but read so lately that it must be left to fall asleep: the last reading still holds
        avoid, ///< asleep: nothing is known of it
    };

    /// `powerFolders` are the `power` folders of the device and of those that it sleeps with.
    explicit SleepGuard(const std::vector<std::filesystem::path>& powerFolders);

    /// The advice for now. `read` counts as a reading.
    [[nodiscard]] Advice adviceAt(std::chrono::steady_clock::time_point now);

    /// Looks again whether the devices have runtime power management, which a driver may switch on late, and
    /// their power settings, which the user may change at any time.
    void lookAgain();

private:
    struct Device {
        std::filesystem::path folder;
        std::optional<KeptFile> status; ///< nothing without runtime power management
    };

    std::vector<Device> m_devices;
    std::chrono::milliseconds m_idleTime{0};
    std::optional<std::chrono::steady_clock::time_point> m_lastReading;
};

} // namespace orvelle::linux_platform
