#pragma once

#include "common/sampling.h"

#include <QJsonObject>

namespace orvelle {

/// What the monitors publish after the update cycles of `plan`.
[[nodiscard]] std::variant<QJsonObject, UnreadableRoot> probe(const SamplingPlan& plan);

} // namespace orvelle
