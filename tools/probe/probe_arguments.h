#pragma once

#include "common/sampling.h"
#include "common/usage_error.h"

#include <variant>

namespace orvelle {

/// The user asks which modules there are, and for nothing else.
struct ModuleListing {};

/// `commandLine` begins with the program's name.
[[nodiscard]] std::variant<SamplingPlan, ModuleListing, UsageError>
parseProbeArguments(const QStringList& commandLine);

} // namespace orvelle
