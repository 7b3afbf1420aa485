#pragma once

#include "core/sources/disk_source.h"

namespace orvelle::darwin_platform {

/// What the file manager says of the volumes that are mounted and not hidden, in its order. A volume whose
/// values or path it cannot tell is left out; nothing when it lists none at all.
[[nodiscard]] std::optional<std::vector<MountedVolume>> readMountedVolumes();

} // namespace orvelle::darwin_platform
