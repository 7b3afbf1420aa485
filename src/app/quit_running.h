#pragma once

#include <chrono>

namespace orvelle {

class Desktop;

/// What has become of the program that was to end.
enum class QuitOutcome {
    ended,
    notRunning, ///< there was none
    stillRuns   ///< after the time that it was given
};

/// Ends the program that runs on the desktop, and waits so long until it has ended.
[[nodiscard]] QuitOutcome quitRunning(Desktop& desktop, std::chrono::milliseconds patience);

} // namespace orvelle
