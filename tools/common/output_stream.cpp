#include "common/output_stream.h"

#include <algorithm>
#include <cerrno>
#include <poll.h>
#include <unistd.h>

namespace orvelle {
namespace {

/// What poll() tells of the descriptor, which includes the end of the reader; 0 after `milliseconds`.
short eventsOf(int descriptor, short wanted, int milliseconds) {
    pollfd request{.fd = descriptor, .events = wanted, .revents = 0};
    return ::poll(&request, 1, milliseconds) > 0 ? request.revents : short{0};
}

} // namespace

OutputStream::Result OutputStream::write(const QByteArray& text) const {
    const char* position = text.constData();
    auto left = static_cast<std::size_t>(text.size());
    while (left > 0) {
        const ssize_t count = ::write(m_descriptor, position, left);
        if (count >= 0) {
            position += count;
            left -= static_cast<std::size_t>(count);
        } else if (errno == EAGAIN || errno == EWOULDBLOCK) {
            constexpr int untilThereIsRoom = -1;
            (void)eventsOf(m_descriptor, POLLOUT, untilThereIsRoom);
        } else if (errno != EINTR) {
            return errno == EPIPE ? Result::readerGone : Result::failed;
        }
    }
    return Result::written;
}

bool OutputStream::waitUntil(std::chrono::steady_clock::time_point deadline) const {
    using namespace std::chrono;
    while (true) {
        const milliseconds left = ceil<milliseconds>(deadline - steady_clock::now());
        if (left <= milliseconds::zero())
            return true;
        constexpr milliseconds longestWait = hours(1);
        if ((eventsOf(m_descriptor, 0, static_cast<int>(std::min(left, longestWait).count())) &
             (POLLERR | POLLHUP | POLLNVAL)) != 0)
            return false;
    }
}

} // namespace orvelle
