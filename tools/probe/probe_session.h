#pragma once

#include "probe/probe_arguments.h"

#include <QJsonObject>

namespace orvelle {

/// Why a root directory cannot be read, for a person to read.
struct UnreadableRoot {
    QString message;
};

/// Runs the update cycles asked for and answers what the monitors published at the end. A replay waits for
/// nothing: its clock begins at 2026-01-01 00:00:00 UTC and is moved on by one step between the roots.
[[nodiscard]] std::variant<QJsonObject, UnreadableRoot> probe(const ProbeArguments& arguments);

} // namespace orvelle
