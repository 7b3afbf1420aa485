#include "app/termination_signals.h"

#include <atomic>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace orvelle {
namespace {

constexpr std::array terminatingSignals{SIGTERM, SIGINT};

/// The handler may use only a lock-free number and write().
std::atomic<int> signalDescriptor{-1};
static_assert(std::atomic<int>::is_always_lock_free);

extern "C" void writeSignal(int /*signal*/) {
    const int savedError = errno;
    const char byte = 0;
    // A full pipe already carries the signal.
    [[maybe_unused]] const ssize_t written = ::write(signalDescriptor, &byte, 1);
    errno = savedError;
}

std::array<int, 2> openPipe() {
    std::array<int, 2> ends{};
    if (::pipe(ends.data()) != 0)
        qFatal("No pipe for signals");
    for (const int end : ends) {
        ::fcntl(end, F_SETFD, FD_CLOEXEC);
        ::fcntl(end, F_SETFL, O_NONBLOCK);
    }
    return ends;
}

void handleWith(void (*handler)(int)) {
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    for (const int signal : terminatingSignals)
        ::sigaction(signal, &action, nullptr);
}

} // namespace

TerminationSignals::TerminationSignals(QObject* parent)
    : QObject(parent)
    , m_pipe(openPipe())
    , m_notifier(m_pipe[0], QSocketNotifier::Read) {
    connect(&m_notifier, &QSocketNotifier::activated, this, [this] {
        m_notifier.setEnabled(false);
        Q_EMIT received();
    });
    signalDescriptor = m_pipe[1];
    handleWith(writeSignal);
}

TerminationSignals::~TerminationSignals() {
    handleWith(SIG_DFL);
    signalDescriptor = -1;
    ::close(m_pipe[1]);
    m_notifier.setEnabled(false);
    ::close(m_pipe[0]);
}

} // namespace orvelle
