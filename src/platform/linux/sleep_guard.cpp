#include "platform/linux/sleep_guard.h"

#include "platform/linux/files.h"
#include "platform/linux/text.h"

#include <algorithm>

namespace orvelle::linux_platform {
namespace {

/// No disk waits longer before it stops; the bound keeps the sums of times within their type.
constexpr std::int64_t longestIdleMilliseconds = std::int64_t{24} * 3600 * 1000;

/// The file with the device's power state; nothing while it has no runtime power management.
std::optional<KeptFile> statusFile(const std::filesystem::path& powerFolder) {
    KeptFile status(powerFolder / "runtime_status", KeptFile::Layout::value);
    const std::optional<std::string_view> text = status.read();
    if (!text || trimmed(*text) == "unsupported")
        return std::nullopt;
    return status;
}

bool isAsleep(KeptFile& status) {
    const std::string_view text = trimmed(status.read().value_or(std::string_view()));
    return text == "suspended" || text == "suspending";
}

/// How long the device stays awake after its last use; 0 when it never sleeps or sleeps at once.
std::chrono::milliseconds idleTime(const std::filesystem::path& powerFolder) {
    if (readAttribute(powerFolder / "control") != "auto")
        return {};
    const auto delay = parseAttributeNumber(readAttribute(powerFolder / "autosuspend_delay_ms"));
    return std::chrono::milliseconds(std::clamp<std::int64_t>(delay.value_or(0), 0, longestIdleMilliseconds));
}

} // namespace

SleepGuard::SleepGuard(const std::vector<std::filesystem::path>& powerFolders) {
    for (const std::filesystem::path& folder : powerFolders)
        m_devices.push_back({.folder = folder, .status = std::nullopt});
    lookAgain();
}

SleepGuard::Advice SleepGuard::adviceAt(std::chrono::steady_clock::time_point now) {
    for (Device& device : m_devices) {
        if (device.status && isAsleep(*device.status))
            return Advice::avoid;
    }
    // Twice the idle time leaves room for the device to fall asleep in between, so that one which is still
    // awake then is in use by others.
    if (m_lastReading && now - *m_lastReading < 2 * m_idleTime)
        return Advice::wait;
    m_lastReading = now;
    return Advice::read;
}

void SleepGuard::lookAgain() {
    m_idleTime = {};
    for (Device& device : m_devices) {
        if (!device.status)
            device.status = statusFile(device.folder);
        if (device.status)
            m_idleTime = std::max(m_idleTime, idleTime(device.folder));
    }
}

} // namespace orvelle::linux_platform
