#pragma once

#include "core/sources/machine_sources.h"

namespace orvelle {

/// The sources of the machine that the program runs on. Each operating system's folder defines it once,
/// and the build decides which one is linked.
[[nodiscard]] MachineSources makeHostSources();

} // namespace orvelle
