#pragma once

#include <cstdint>
#include <linux/filter.h>
#include <optional>
#include <vector>

namespace orvelle {

/// What a process still needs to ask for.
struct FilterNeeds {
    std::int32_t process = 0; ///< its own id, to which signals may be sent
    bool network = false;     ///< sockets of other families than the local ones
    bool leakChecker =
        false; ///< the leak checker of a build with sanitizers: it stops its own threads from a process
};

/// What seccomp calls the architecture that this program was built for; nothing where the filter does not
/// know it.
[[nodiscard]] std::optional<std::uint32_t> filteredArchitecture();

/// A program for seccomp that refuses with an error what the process does not need, and allows everything
/// else. It refuses every call of another architecture, whose numbers mean something else.
[[nodiscard]] std::vector<sock_filter> systemCallFilter(std::uint32_t architecture, const FilterNeeds& needs);

} // namespace orvelle
