#pragma once

#include "animation/animation_clock.h"

#include <cmath>

namespace orvelle {

/// AnimationClock whose time passes only when the test says so.
struct ManualClock {
    double seconds = 0;
    AnimationClock clock{[this] { return seconds; }};

    /// Lets time pass in steps of one frame.
    void pass(double duration) {
        constexpr double frame = 0.01;
        const int frames = static_cast<int>(std::round(duration / frame));
        for (int count = 0; count < frames; ++count) {
            seconds += frame;
            clock.step();
        }
    }
};

} // namespace orvelle
