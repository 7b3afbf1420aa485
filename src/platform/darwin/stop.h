#pragma once

namespace orvelle::darwin_platform {

/// Ends the process with a message on standard error. Only for an answer of the system that contradicts what
/// it documents, where going on would publish a wrong value as a plausible one; a call that fails is no such
/// answer.
[[noreturn]] void stopForContradiction(const char* contradiction);

} // namespace orvelle::darwin_platform
