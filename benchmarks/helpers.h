#pragma once

#include <cstddef>
#include <sys/types.h>
#include <vector>

namespace orvelle::bench {

/// Extra processes for a monitor to look at; they end with the object, each by its own pid.
class Helpers {
public:
    Helpers() = default;
    ~Helpers();
    Helpers(const Helpers&) = delete;
    Helpers& operator=(const Helpers&) = delete;

    /// Makes room for `count` processes, so that starting them needs no more memory.
    void reserve(std::size_t count) {
        m_pids.resize(count); // brings the pages in
        m_pids.clear();
    }
    /// Processes that never wake.
    void addSleepers(std::size_t count);
    /// Processes that wake for a moment once per second, spread over it.
    void addWakers(std::size_t count);
    /// Processes that never rest and give way to all others.
    void addBusy(std::size_t count);
    /// One process of `threadCount` threads that never wake.
    void addThreadedProcess(std::size_t threadCount);

private:
    template <class Work>
    void add(Work work);

    std::vector<pid_t> m_pids;
};

/// How many helpers this machine can bear: its pids, its limit for one user and its free memory allow no
/// more.
[[nodiscard]] std::size_t roomForProcesses();

/// A process that comes and goes at once, as they do on any machine in use: the newest pid moves on.
void startShortProcess();

} // namespace orvelle::bench
