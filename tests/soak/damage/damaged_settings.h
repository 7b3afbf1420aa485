#pragma once

#include "dice.h"

#include <filesystem>

namespace orvelle::soak {

/// Writes a settings file of any content, encoding, size and kind into `folder`, opens it, reads and changes
/// settings, and throws when a value is not legal, when a stored one is not read again, or when a line is
/// lost that is not the changed setting's.
void tryDamagedSettings(const std::filesystem::path& folder, Dice& dice);

} // namespace orvelle::soak
