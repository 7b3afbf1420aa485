#include "require.h"

#include "platform/readable_name.h"

#include <algorithm>

namespace orvelle::fuzz {

void requireShowable(std::string_view name) {
    require(readableName(name) == name, "a name fit to be shown stays as it is");
    require(std::ranges::none_of(name, [](char byte) { return byte == '\n' || byte == '\x1b' || byte == 0; }),
            "a name holds no control characters");
}

} // namespace orvelle::fuzz
