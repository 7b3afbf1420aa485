#pragma once

#include "core/sources/machine_sources.h"

#include <memory>
#include <vector>

namespace orvelle {

/// Plays recorded machines one after the other as if they were one machine at later and later moments.
class ReplayMachine {
public:
    /// At least one moment.
    explicit ReplayMachine(std::vector<MachineSources> moments);

    /// Sources that answer from the present moment. They keep the moments alive.
    [[nodiscard]] MachineSources sources(WallClock now) const;

    [[nodiscard]] std::size_t momentCount() const;
    /// Goes on to the next moment; stays at the last.
    void advance();

    struct Moments;

private:
    std::shared_ptr<Moments> m_moments;
};

} // namespace orvelle
