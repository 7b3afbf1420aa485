#pragma once

#include "probe/report/recorded_tree.h"

namespace orvelle {

/// Records what the Linux sources read in `sys` of the machine below `root`: sensors, batteries, network
/// interfaces and block devices. Nothing that sleeps is woken.
void recordDevices(const std::filesystem::path& root, Pseudonyms& pseudonyms, RecordedTree& tree);

} // namespace orvelle
