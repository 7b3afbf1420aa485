#pragma once

#include "common/output_stream.h"
#include "common/sampling.h"
#include "common/usage_error.h"

#include <QStringList>

#include <functional>

namespace orvelle {

/// Which machine is followed, and how closely.
struct FollowPlan {
    QStringList roots; ///< one directory per line; empty: this machine, for as long as somebody reads
    double intervalSeconds = 3; ///< between two lines; in a replay between two roots, which nobody waits for
};

/// Makes the line of one sample, without its end.
using LineMaker = std::function<QByteArray(SystemMonitor&)>;

/// How following a machine ended.
using FollowEnd = std::variant<OutputStream::Result, UnreadableRoot>;

/// Samples a machine and writes a line for each sample. The first line of this machine comes after a short
/// measurement, because speeds and usages are differences of two samples. `settings` holds the defaults.
[[nodiscard]] FollowEnd follow(const FollowPlan& plan, const SettingsStore& settings,
                               const OutputStream& output, const LineMaker& makeLine);

/// The monitors of this machine before any sample, whose values show what there is to ask for.
[[nodiscard]] std::unique_ptr<SystemMonitor> unsampledMonitor(const SettingsStore& settings);

} // namespace orvelle
