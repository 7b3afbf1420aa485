#pragma once

#include "app/views/views.h"

/// The one function that the module with the windows exports, and the name by which the program finds it. The
/// caller owns the result.
extern "C" [[gnu::visibility("default")]] orvelle::Views*
orvelleMakeViews(const orvelle::ViewContext& context);

namespace orvelle {

inline constexpr const char* makeViewsSymbol = "orvelleMakeViews";

} // namespace orvelle
