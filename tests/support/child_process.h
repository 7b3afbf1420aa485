#pragma once

#include <sys/wait.h>
#include <unistd.h>

namespace orvelle {

/// Runs `body` in a process of its own, which may change its view of the system, and returns what it returned
/// (0 to 255); -1 when it did not come to its end. `body` must report by its result alone.
template <class Body>
[[nodiscard]] int inChildProcess(Body body) {
    const pid_t child = ::fork();
    if (child == 0)
        ::_exit(body());
    int status = 0;
    const bool hasEnded = child > 0 && ::waitpid(child, &status, 0) == child && WIFEXITED(status);
    return hasEnded ? WEXITSTATUS(status) : -1;
}

} // namespace orvelle
