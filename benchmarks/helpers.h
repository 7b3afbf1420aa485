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

    /// Reserves memory for `count` processes, so that starting them allocates nothing.
    void reserve(std::size_t count) { m_pids.reserve(count); }
    /// Processes that never wake.
    void addSleepers(std::size_t count);
    /// Processes that wake for a moment once per second, spread over it.
    void addWakers(std::size_t count);
    /// One process of `threadCount` threads that never wake.
    void addThreadedProcess(std::size_t threadCount);

private:
    template <class Work>
    void add(Work work);

    std::vector<pid_t> m_pids;
};

/// A process that comes and goes at once, as they do on any machine in use: the newest pid moves on.
void startShortProcess();

} // namespace orvelle::bench
