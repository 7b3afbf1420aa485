#pragma once

#include "windows/window_factory.h"

/// The one function that the module with the windows exports, and the name by which the program finds it. The
/// caller owns the result.
extern "C" [[gnu::visibility("default")]] orvelle::WindowFactory*
orvelleMakeWindowFactory(const orvelle::WindowContext& context);

namespace orvelle {

inline constexpr const char* makeWindowFactorySymbol = "orvelleMakeWindowFactory";

} // namespace orvelle
