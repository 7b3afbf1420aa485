#pragma once

#include "core/sources/machine_sources.h"

namespace orvelle {

/// Asks the sources of `machine` in the order of an update cycle, and fails the running test for each answer
/// that breaks a promise of `core/sources`. The records of a battery have no bounds, so it is not asked.
void expectKeepsContract(const MachineSources& machine);

} // namespace orvelle
