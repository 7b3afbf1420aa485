#pragma once

#include <optional>
#include <sys/wait.h>
#include <unistd.h>

namespace orvelle {

/// Runs `body` in a process of its own, which may change its view of the system, and returns what it
/// returned: an enumerator between 0 and 255. Nothing when it did not come to its end. `body` must report by
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
