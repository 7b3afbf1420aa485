#include "shell/wayland/retry_delay.h"

#include <algorithm>
#include <utility>

namespace orvelle {

std::chrono::milliseconds RetryDelay::next(std::chrono::milliseconds life) {
    if (life >= longLife)
        m_next = first;
    return std::exchange(m_next, std::min(m_next * 2, longest));
}

} // namespace orvelle
