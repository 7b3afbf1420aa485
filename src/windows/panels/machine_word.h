#pragma once

#include <QString>

namespace orvelle {

/// What people call a machine under this operating system: "Mac" or "computer". Each system has a file that
/// answers; the build chooses it.
[[nodiscard]] QString machineWord();

} // namespace orvelle
