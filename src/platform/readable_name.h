#pragma once

#include <string>
#include <string_view>

namespace orvelle {

/// A name from the kernel made readable: valid UTF-8 on one line. Names of mounts, interfaces, processes and
/// devices may hold any byte, including some that would break a line or change the direction of the text.
/// Bytes that are not UTF-8 become U+FFFD, control characters and line separators become blanks, and
/// characters that change the direction of the text are left out. Any other name stays the same.
[[nodiscard]] std::string readableName(std::string_view name);

/// The same into `target`, whose memory is reused where it is large enough. `name` must not be part of it.
void assignReadableName(std::string& target, std::string_view name);

} // namespace orvelle
