#pragma once

#include <chrono>
#include <cstddef>
#include <string>
#include <vector>

namespace orvelle::soak {

// Sanitizers keep freed memory for a while and take time as they like.
#ifdef ORVELLE_SANITIZED
inline constexpr bool isSanitized = true;
#else
inline constexpr bool isSanitized = false;
#endif

/// What this process takes from the system at a moment.
struct Footprint {
    std::size_t residentKilobytes = 0;
    std::size_t heapBytes = 0; ///< in use; 0 where a sanitizer has replaced the heap
    std::size_t descriptors = 0;
    std::size_t threads = 0;
};

/// Gives free memory back to the system first.
[[nodiscard]] Footprint measureFootprint();

/// What has grown by more than a cache that fills up or a thread that just writes the settings, in words.
[[nodiscard]] std::vector<std::string> growthBetween(const Footprint& before, const Footprint& after);

/// How often the event loop wakes in `time`, after what was announced before has been done.
[[nodiscard]] int wakeUpsIn(std::chrono::milliseconds time);

/// Processor time of this thread so far.
[[nodiscard]] double threadMicroseconds();

} // namespace orvelle::soak
