#pragma once

#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <utility>

namespace orvelle::darwin_platform {

/// The bytes on each volume that the system would delete to make room for a file of the user. They count as
/// free beside those that are. Another process of the system works them out, so it is asked seldom: once for
/// each volume in `lifetime`.
class PurgeableSpace {
public:
    using Clock = std::chrono::steady_clock;
    using Now = std::function<Clock::time_point()>;

    static constexpr std::chrono::minutes lifetime{5};

    explicit PurgeableSpace(Now now)
        : m_now(std::move(now)) {}

    /// Begins a list of the volumes that are mounted now. Those that the last list lacked are forgotten.
    void beginList();

    /// The purgeable bytes of the volume at this path: what `ask` answered within the lifetime, or answers
    /// now. A volume of another capacity is another volume.
    [[nodiscard]] std::int64_t bytesOn(const std::string& path, std::int64_t capacity,
                                       const std::function<std::int64_t()>& ask);

private:
    struct Answer {
        std::int64_t bytes = 0;
        std::int64_t capacity = 0;
        Clock::time_point askedAt;
    };
    using Answers = std::map<std::string, Answer>;

    Now m_now;
    Answers m_answers;     ///< of the volumes of this list
    Answers m_lastAnswers; ///< of those of the list before
};

/// The bytes that the user's files can take of a volume. `available` ones are free, `purgeable` ones could
/// be. No more than `capacity`, and nothing for numbers below 0.
[[nodiscard]] std::int64_t freeBytes(std::int64_t available, std::int64_t purgeable, std::int64_t capacity);

} // namespace orvelle::darwin_platform
