#pragma once

#include "common/random.h"
#include "core/sources/machine_sources.h"

namespace orvelle::soak {

/// The clocks of a machine. The steady one only goes on; the wall clock is also set, back and forward by
/// years.
struct Clocks {
    WallTime steady{std::chrono::hours(24)};
    WallTime wall = start();

    /// A sample later.
    void passUsually();
    /// A sample later, or a week after a suspension, or with a wall clock that was set.
    void goOn(Random& random);

    /// 2026-01-01 00:00:00 UTC
    [[nodiscard]] static WallTime start() { return WallTime{std::chrono::seconds(1767225600)}; }
};

/// A machine whose parts come, change and go. The same seed makes the same changes.
class Machine {
public:
    virtual ~Machine() = default;

    /// The sources and the wall clock of the machine. They are valid for as long as it is.
    [[nodiscard]] virtual MachineSources sources() = 0;
    /// Makes the machine what it was at first.
    virtual void reset() = 0;
    /// Lets the time until the next sample pass.
    virtual void change(Random& random) = 0;

    Clocks clocks;
};

} // namespace orvelle::soak
