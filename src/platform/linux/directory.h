#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace orvelle::linux_platform {

/// The names in a directory in the kernel's order; what could be listed when it vanishes meanwhile.
[[nodiscard]] std::vector<std::string> namesIn(const std::filesystem::path& directory);

/// Whether there is something of this name, be it a link to nowhere.
[[nodiscard]] bool existsUnfollowed(const std::filesystem::path& path);

/// Whether a directory can have an entry of this name: each has "." and ".." already.
[[nodiscard]] bool isEntryName(std::string_view name);

} // namespace orvelle::linux_platform
