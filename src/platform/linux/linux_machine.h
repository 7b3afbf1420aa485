#pragma once

#include "core/sources/machine_sources.h"

#include <filesystem>

namespace orvelle {

/// Linux sources that read the tree below `root` instead of the running system: nothing of the host leaks
/// into what they answer. `now` is the clock of the replay.
[[nodiscard]] MachineSources makeLinuxSources(const std::filesystem::path& root, WallClock now);

} // namespace orvelle
