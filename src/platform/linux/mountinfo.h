#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace orvelle::linux_platform {

/// One line of `/proc/self/mountinfo` (Documentation/filesystems/proc.rst, section 3.5), names without their
/// escapes.
struct Mount {
    std::int64_t id = 0;
    std::int64_t parentId = 0; ///< the mount that this one was mounted in, possibly outside the list
    unsigned deviceMajor = 0;  ///< 0 when no block device lies below, as for memory and network file systems
    unsigned deviceMinor = 0;
    std::string root; ///< what of the file system is mounted: "/" is all of it, else this is a bind or a part
    std::string path; ///< where it is mounted
    std::string fileSystem;
    std::string source; ///< device, pool or server, as the file system likes to say it

    bool operator==(const Mount&) const = default;
};

/// The mounts in the text's order, which is that of mounting. Lines that are cut or make no sense are left
/// out.
[[nodiscard]] std::vector<Mount> parseMountinfo(std::string_view text);

} // namespace orvelle::linux_platform
