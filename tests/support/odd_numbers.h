#pragma once

#include <limits>

/// Numbers that no measurement produces, but that every rule must survive.
namespace orvelle {

inline constexpr double infinity = std::numeric_limits<double>::infinity();
inline constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

} // namespace orvelle
