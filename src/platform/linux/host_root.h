#pragma once

#include <filesystem>

namespace orvelle::linux_platform {

/// Whether `root` is the running system. Below any other root only the tree itself may be asked: no system
/// call may tell anything of the host.
[[nodiscard]] inline bool isHostRoot(const std::filesystem::path& root) {
    return root.lexically_normal() == "/";
}

} // namespace orvelle::linux_platform
