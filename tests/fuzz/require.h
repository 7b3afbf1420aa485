#pragma once

#include <stdexcept>
#include <string_view>

namespace orvelle::fuzz {

/// Throws with `promise` when it does not hold. A test reports that, a fuzzer takes it for a crash.
inline void require(bool holds, const char* promise) {
    if (!holds)
        throw std::logic_error(promise);
}

/// Throws unless `part` lies within `text`, as a view into a parsed text must.
inline void requireWithin(std::string_view text, std::string_view part) {
    require(part.empty() ||
                (part.data() >= text.data() && part.data() + part.size() <= text.data() + text.size()),
            "a view points into the text that was parsed");
}

/// Throws unless `name` is fit to be shown.
void requireShowable(std::string_view name);

} // namespace orvelle::fuzz
