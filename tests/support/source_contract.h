#pragma once

#include "core/sources/machine_sources.h"

namespace orvelle {

/// Queries the sources of `machine` in the order of an update cycle, and fails the running test for each
/// answer that breaks a promise of `core/sources`. Skips the battery, because its records have no bounds.
void expectKeepsContract(const MachineSources& machine);

} // namespace orvelle
