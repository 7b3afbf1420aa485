#pragma once

#include "charts/motion.h"

#include <cmath>

namespace orvelle {

/// Motion whose time passes only when the test says so.
struct ManualMotion {
    double seconds = 0;
    Motion motion{[this] { return seconds; }};

    /// Lets time pass in steps of one frame.
    void pass(double duration) {
        constexpr double frame = 0.01;
        const int frames = static_cast<int>(std::round(duration / frame));
        for (int count = 0; count < frames; ++count) {
            seconds += frame;
            motion.step();
        }
    }
};

} // namespace orvelle
