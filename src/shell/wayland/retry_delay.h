#pragma once

#include <chrono>

namespace orvelle {

/// How long to wait before a strip that the compositor has closed is shown again. A compositor may close each
/// one at once, so the delays grow.
class RetryDelay {
public:
    static constexpr std::chrono::milliseconds first{50};
    static constexpr std::chrono::milliseconds longest{5000};
    /// A strip that lived this long was no failure.
    static constexpr std::chrono::milliseconds longLife{10'000};

    /// The delay after a strip that was closed when it had lived this long.
    [[nodiscard]] std::chrono::milliseconds next(std::chrono::milliseconds life);

private:
    std::chrono::milliseconds m_next = first;
};

} // namespace orvelle
