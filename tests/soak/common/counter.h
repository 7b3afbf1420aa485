#pragma once

#include "common/random.h"

namespace orvelle::soak {

/// What a counter of a kernel does once in so many samples instead of counting.
inline constexpr std::uint64_t samplesPerMishap = 200;
/// Parts of a machine come as often as they go.
inline constexpr std::uint64_t samplesPerArrival = 20;

/// The most that usual counters move on in a sample.
inline constexpr std::uint64_t bytesPerSample = 300'000'000;
inline constexpr std::uint64_t ticksPerSample = 300;

/// A counter one sample later. It usually moves on by at most `step`. Rarely it stands still, restarts at 0,
/// goes back, jumps ahead, or comes close to where 32 bits or `largest` end, beyond which it wraps.
[[nodiscard]] inline std::uint64_t countedOn(std::uint64_t counter, std::uint64_t step, std::uint64_t largest,
                                             Random& random) {
    constexpr std::uint64_t largestOf32Bits = UINT32_MAX;
    if (random.oneIn(samplesPerMishap)) {
        switch (random.upTo(6)) {
        case 0:
            return counter;
        case 1:
            return 0;
        case 2:
            return counter - random.upTo(counter);
        case 3:
            return largest - random.upTo(step < largest ? step : largest);
        case 4:
            return largest;
        case 5:
            return largestOf32Bits < largest ? largestOf32Bits - random.upTo(step % largestOf32Bits)
                                             : largest;
        default:
            return counter + random.upTo(largest - counter);
        }
    }
    const std::uint64_t moved = random.upTo(step);
    if (counter <= largestOf32Bits && counter + moved > largestOf32Bits && random.oneIn(2))
        return counter + moved - largestOf32Bits - 1; // a driver that counts in 32 bits
    return moved > largest - counter ? moved - (largest - counter) - 1 : counter + moved;
}

} // namespace orvelle::soak
