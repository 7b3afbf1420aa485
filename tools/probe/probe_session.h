#pragma once

#include "common/sampling.h"

#include <QByteArray>
#include <QJsonObject>

namespace orvelle {

/// Every value that the monitors publish, by its exact name, after the update cycles of `plan`.
[[nodiscard]] std::variant<QJsonObject, UnreadableRoot> probe(const SamplingPlan& plan);

/// A line for each module from left to right, its fields between tabs: key, width of its status item in
/// points, the setting that shows it, the default of that setting, and title.
[[nodiscard]] QByteArray moduleLines();

} // namespace orvelle
