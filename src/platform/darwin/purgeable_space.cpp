#include "platform/darwin/purgeable_space.h"

#include <algorithm>
#include <utility>

namespace orvelle::darwin_platform {

void PurgeableSpace::beginList() {
    m_lastAnswers = std::exchange(m_answers, {});
}

std::int64_t PurgeableSpace::bytesOn(const std::string& path, std::int64_t capacity,
                                     const std::function<std::int64_t()>& ask) {
    const Clock::time_point now = m_now();
    const auto last = m_lastAnswers.find(path);
    const bool isKnown = last != m_lastAnswers.end() && last->second.capacity == capacity &&
                         now - last->second.askedAt < lifetime;
    const Answer answer =
        isKnown ? last->second : Answer{.bytes = ask(), .capacity = capacity, .askedAt = now};
    m_answers.insert_or_assign(path, answer);
    return answer.bytes;
}

std::int64_t freeBytes(std::int64_t available, std::int64_t purgeable, std::int64_t capacity) {
    const std::int64_t most = std::max<std::int64_t>(capacity, 0);
    const std::int64_t free = std::clamp<std::int64_t>(available, 0, most);
    return free + std::clamp<std::int64_t>(purgeable, 0, most - free);
}

} // namespace orvelle::darwin_platform
