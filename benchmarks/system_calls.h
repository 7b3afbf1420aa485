#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace orvelle::bench {

/// All system calls that a command makes from its start to its end, counted by strace, which leaves its table
/// in `table`; nothing where strace is missing or must not trace.
[[nodiscard]] std::optional<double> countSystemCalls(const std::vector<std::string>& command,
                                                     const std::filesystem::path& table);

} // namespace orvelle::bench
