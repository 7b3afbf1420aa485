#pragma once

#include "common/sampling.h"
#include "common/tool_command_line.h"
#include "common/usage_error.h"
#include "probe/following.h"
#include "settings/module_table.h"

#include <QList>

#include <optional>
#include <variant>

namespace orvelle {

/// The user asks which modules there are, and for nothing else.
struct ModuleListing {};

/// A JSON object of published values for each sample.
struct ValueLines {
    FollowPlan plan;
    QStringList fields; ///< paths of the wanted values; empty: all of them
};

/// A line for a status bar for each sample.
struct BarLines {
    FollowPlan plan;
    std::optional<QList<ModuleId>> modules; ///< from left to right; nothing: those that the user shows
    bool isPlain = false;                   ///< the bare text, without JSON around it
};

/// A file to attach to a bug report.
struct ReportPlan {
    QStringList roots; ///< moments of a recorded machine; empty: this machine
    QString file;      ///< where it is written
};

using ProbeRequest =
    std::variant<SamplingPlan, ModuleListing, ValueLines, BarLines, ReportPlan, PrintedText, UsageError>;

/// `commandLine` begins with the program's name.
[[nodiscard]] ProbeRequest parseProbeArguments(const QStringList& commandLine);

} // namespace orvelle
