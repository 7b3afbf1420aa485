#pragma once

#include <string>
#include <string_view>

namespace orvelle::linux_platform {

/// `text` with every backslash and three octal digits replaced by the byte that they stand for: the way in
/// which mountinfo and fstab write blanks and line ends (`\040`).
[[nodiscard]] std::string withoutOctalEscapes(std::string_view text);

/// `text` with every `\x` and two hexadecimal digits replaced by the byte that they stand for: the way in
/// which udev writes what it does not put into a link's name (`\x20`).
[[nodiscard]] std::string withoutHexEscapes(std::string_view text);

} // namespace orvelle::linux_platform
