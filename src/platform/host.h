#pragma once

#include "core/sources/machine_sources.h"

#include <filesystem>

/// Each operating system's folder defines these functions once, and the build decides which one is linked.
namespace orvelle {

/// The sources of the machine that the program runs on.
[[nodiscard]] MachineSources makeHostSources();

/// Sources that read the tree below `root` as if it were the root of a machine: nothing of the host leaks
/// into what they answer. An empty directory is a machine with nothing. `now` is the clock of the replay.
[[nodiscard]] MachineSources makeTreeSources(const std::filesystem::path& root, WallClock now);

} // namespace orvelle
