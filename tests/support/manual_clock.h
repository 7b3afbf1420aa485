#pragma once

#include "animation/animation_clock.h"

#include <cmath>

namespace orvelle {

/// An AnimationClock whose time the test controls.
struct ManualClock {
    double seconds = 0;
    AnimationClock clock{[this] { return seconds; }};

    /// Advances the time in steps of one frame.
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
