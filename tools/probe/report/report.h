#pragma once

#include "common/sampling.h"

#include <QJsonObject>

namespace orvelle {

struct RecordedTree;

/// The machine, its values and its surroundings in one object to attach to a bug report. Samples this machine
/// for three seconds, or replays `roots`. `settings` are the user's.
[[nodiscard]] std::variant<QJsonObject, UnreadableRoot> makeReport(const QStringList& roots,
                                                                   const SettingsStore& settings);

/// A recorded moment as JSON: each file as a list of its lines, and the target of each link.
[[nodiscard]] QJsonObject jsonFrom(const RecordedTree& tree);

} // namespace orvelle
