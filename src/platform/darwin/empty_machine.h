#pragma once

#include "core/sources/machine_sources.h"

namespace orvelle::darwin_platform {

/// The sources of a machine with nothing: every answer is that it cannot be read.
[[nodiscard]] MachineSources makeEmptyMachine(WallClock now);

} // namespace orvelle::darwin_platform
