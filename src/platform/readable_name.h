#pragma once

#include <string>
#include <string_view>

namespace orvelle {

/// A name from the kernel made fit to be shown: valid UTF-8 on one line. Names of mounts, interfaces,
/// processes and devices may hold any byte, also such as would break a row in two or turn the text around
/// them. Bytes that are not UTF-8 become U+FFFD, control characters and line separators become blanks, and
/// characters that change the direction of the text are left out. Any other name is returned as it is.
[[nodiscard]] std::string readableName(std::string_view name);

/// The same into `target`, whose memory is used again where it is large enough. `name` is not part of it.
void assignReadableName(std::string& target, std::string_view name);

} // namespace orvelle
