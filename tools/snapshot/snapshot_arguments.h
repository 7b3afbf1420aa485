#pragma once

#include "common/tool_command_line.h"
#include "common/usage_error.h"

#include <QStringList>

#include <variant>

namespace orvelle {

/// The arguments of the snapshot tool.
struct SnapshotArguments {
    QString directory;      ///< for the pictures
    QStringList roots;      ///< one directory per update cycle; empty: sample this machine
    bool ofExample = false; ///< show the example laptop instead, see `ExampleMachine`
    QString theme;          ///< id of the theme of all pictures
    double scale = 1;       ///< pixels per point
};

/// `commandLine` begins with the program's name.
[[nodiscard]] std::variant<SnapshotArguments, PrintedText, UsageError>
parseSnapshotArguments(const QStringList& commandLine);

} // namespace orvelle
