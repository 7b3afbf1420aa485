#pragma once

#include "common/usage_error.h"

#include <QStringList>

#include <variant>

namespace orvelle {

/// What the snapshot tool was asked for.
struct SnapshotArguments {
    QString directory;      ///< that the pictures are written into
    QStringList roots;      ///< one directory per update cycle; empty: sample this machine
    bool ofExample = false; ///< show the example laptop instead, see `ExampleMachine`
    QString theme;          ///< id of the theme that everything is painted in
    double scale = 1;       ///< pixels per point
};

/// `commandLine` begins with the program's name.
[[nodiscard]] std::variant<SnapshotArguments, UsageError>
parseSnapshotArguments(const QStringList& commandLine);

} // namespace orvelle
