#pragma once

#include <optional>
#include <string_view>

/// Which of the kernel's sensors stands for a whole processor (Documentation/hwmon/<driver>.rst has the
/// labels).
namespace orvelle::linux_platform {

/// How well a temperature stands for the processor, 0 the best; nothing when it does not. The die as a whole
/// comes before its parts, a processor's own sensor before one of the system on a chip, and what the
/// firmware calls a thermal zone (acpitz) comes last.
[[nodiscard]] std::optional<int> cpuTemperatureRank(std::string_view chip, std::string_view label);

/// The same for a graphics processor. All channels of one chip are equal: the first is the processor's own.
[[nodiscard]] std::optional<int> gpuTemperatureRank(std::string_view chip);

/// Where a chip stands in the list of all: 0 for processors, 1 for graphics processors, 2 for the rest.
[[nodiscard]] int chipGroup(std::string_view chip);

} // namespace orvelle::linux_platform
