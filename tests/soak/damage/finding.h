#pragma once

#include <stdexcept>
#include <string>

namespace orvelle::soak {

/// Throws with `promise`, and what broke it, unless the promise holds.
inline void require(bool holds, const char* promise, const std::string& what = {}) {
    if (!holds)
        throw std::logic_error(what.empty() ? std::string(promise) : std::string(promise) + ": " + what);
}

} // namespace orvelle::soak
