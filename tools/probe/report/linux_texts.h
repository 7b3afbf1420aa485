#pragma once

#include "platform/linux/mounts.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvelle {

class Pseudonyms;

// Texts of the kernel with pseudonyms in the place of private names. Each function keeps what the sources
// read and what is known to be harmless; a line in an unexpected form is left out.

/// Of `/proc/stat`, `/proc/meminfo`, `/proc/loadavg` and the like the lines that hold numbers, behind one of
/// the kernel's labels or alone.
[[nodiscard]] std::string numbersOnly(std::string_view text);

[[nodiscard]] std::string diskstatsText(std::string_view text, Pseudonyms& pseudonyms);

[[nodiscard]] std::string netDevText(std::string_view text, Pseudonyms& pseudonyms);

/// The default routes of `/proc/net/route`, without their gateways.
[[nodiscard]] std::string routeText(std::string_view text, Pseudonyms& pseudonyms);

/// `/proc/self/mountinfo`, without the options.
[[nodiscard]] std::string mountinfoText(const std::vector<linux_platform::Mount>& mounts,
                                        Pseudonyms& pseudonyms);

/// Where a mount comes from: a device, a dataset, a server.
[[nodiscard]] std::string mountSource(const linux_platform::Mount& mount, Pseudonyms& pseudonyms);

/// The lines of `/etc/fstab` that hide a mount.
[[nodiscard]] std::string fstabText(std::string_view text, Pseudonyms& pseudonyms);

/// A process of `/proc/PID/stat`: what the sources read of it, the rest as zeros. `name` stands in the place
/// of its own.
[[nodiscard]] std::optional<std::string> processStatText(std::string_view text, std::int32_t pid,
                                                         std::string_view name);

/// The lines of an interface's `uevent` that tell its type.
[[nodiscard]] std::string ueventText(std::string_view text);

} // namespace orvelle
