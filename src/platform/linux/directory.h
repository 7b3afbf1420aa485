#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace orvelle::linux_platform {

/// The names in a directory in the kernel's order; what could be listed when it vanishes meanwhile.
[[nodiscard]] std::vector<std::string> namesIn(const std::filesystem::path& directory);

} // namespace orvelle::linux_platform
