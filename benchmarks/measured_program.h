#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <sys/types.h>
#include <vector>

namespace orvelle::bench {

/// A program that runs beside others while all of them are measured in one way: by its CPU clock, from
/// outside.
class MeasuredProgram {
public:
    enum class Output {
        discarded, ///< to /dev/null
        terminal,  ///< to a terminal of 50 lines that nobody looks at
    };

    MeasuredProgram(std::string name, const std::vector<std::string>& command, Output output);
    ~MeasuredProgram();
    MeasuredProgram(const MeasuredProgram&) = delete;
    MeasuredProgram& operator=(const MeasuredProgram&) = delete;

    [[nodiscard]] const std::string& name() const { return m_name; }
    /// Processor time used so far in nanoseconds; nothing once it has ended.
    [[nodiscard]] std::optional<std::uint64_t> nanoseconds() const;
    /// Reads away what it wrote to its terminal: a program waits when nobody does.
    void drain() const;

private:
    std::string m_name;
    int m_terminal = -1;
    pid_t m_pid = -1;
};

/// Runs a command to its end without its output; whether it ended well.
bool runToEnd(const std::vector<std::string>& command);

/// Where a command of that name is; nothing when it is not installed.
[[nodiscard]] std::optional<std::filesystem::path> findCommand(const std::string& name);

} // namespace orvelle::bench
