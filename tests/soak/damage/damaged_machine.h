#pragma once

#include "dice.h"

#include <filesystem>

namespace orvelle::soak {

/// Damages a copy of one of the recorded machines below `fixtures`, again between two samples and at times
/// while it is read, and has the monitors sample it and every status item show it. Throws when what is
/// published or shown is broken. `folder` exists and is used for the copy.
void tryDamagedMachine(const std::filesystem::path& fixtures, const std::filesystem::path& folder,
                       Dice& dice);

} // namespace orvelle::soak
