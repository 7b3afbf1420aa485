#pragma once

#include <CoreFoundation/CoreFoundation.h>
#include <cstdint>
#include <optional>
#include <string>

/// Look-ups in a property dictionary of the system. A key that is missing, or whose value is of another type
/// than the one asked for, is nothing.
namespace orvelle::darwin_platform {

/// A number that a signed 64-bit integer holds exactly.
[[nodiscard]] std::optional<std::int64_t> integerIn(CFDictionaryRef properties, CFStringRef key);

/// Any number, cut toward zero; one that a signed 64-bit integer cannot hold is nothing.
[[nodiscard]] std::optional<std::int64_t> truncatedNumberIn(CFDictionaryRef properties, CFStringRef key);

[[nodiscard]] std::optional<bool> booleanIn(CFDictionaryRef properties, CFStringRef key);

[[nodiscard]] std::optional<std::string> stringIn(CFDictionaryRef properties, CFStringRef key);

/// The dictionary belongs to `properties`; null when there is none.
[[nodiscard]] CFDictionaryRef dictionaryIn(CFDictionaryRef properties, CFStringRef key);

} // namespace orvelle::darwin_platform
