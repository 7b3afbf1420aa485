#pragma once

#include <QStringList>

#include <variant>

namespace orvelle {

/// What the probe was asked for.
struct ProbeArguments {
    QStringList roots;      ///< one directory per update cycle; empty: sample this machine
    double stepSeconds = 3; ///< time between two cycles
    int cycles = 2;         ///< update cycles of this machine; `roots` decides it in a replay
};

/// Why a command line cannot be taken, for a person to read.
struct UsageError {
    QString message;
};

/// `commandLine` begins with the program's name.
[[nodiscard]] std::variant<ProbeArguments, UsageError> parseProbeArguments(const QStringList& commandLine);

} // namespace orvelle
