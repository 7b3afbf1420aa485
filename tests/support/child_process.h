#pragma once

#include <optional>
#include <sys/wait.h>
#include <unistd.h>

namespace orvelle {

/// Runs `body` in a separate process, which may change its view of the system, and returns the result of
/// `body`: an enumerator between 0 and 255, or nothing if `body` did not finish. `body` must report through
/// its result alone.
template <class Body>
[[nodiscard]] auto inChildProcess(Body body) -> std::optional<decltype(body())> {
    const pid_t child = ::fork();
    if (child == 0)
        ::_exit(static_cast<int>(body()));
    int status = 0;
    const bool hasEnded = child > 0 && ::waitpid(child, &status, 0) == child && WIFEXITED(status);
    if (!hasEnded)
        return std::nullopt;
    return static_cast<decltype(body())>(WEXITSTATUS(status));
}

} // namespace orvelle
