#pragma once

#include <cstddef>

namespace orvelle::soak {

/// What this process takes from the system at a moment.
struct Footprint {
    std::size_t residentKilobytes = 0;
    std::size_t heapBytes = 0; ///< in use; 0 where a sanitizer has replaced the heap
    std::size_t descriptors = 0;
    std::size_t threads = 0;
};

/// Gives free memory back to the system first.
[[nodiscard]] Footprint measureFootprint();

/// Processor time of this thread so far.
[[nodiscard]] double threadMicroseconds();

} // namespace orvelle::soak
