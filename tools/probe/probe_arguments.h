#pragma once

#include "common/sampling.h"
#include "common/usage_error.h"

#include <variant>

namespace orvelle {

/// `commandLine` begins with the program's name.
[[nodiscard]] std::variant<SamplingPlan, UsageError> parseProbeArguments(const QStringList& commandLine);

} // namespace orvelle
