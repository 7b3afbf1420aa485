#pragma once

#include "darwin/simulated/property.h"

namespace orvelle::simulated {

/// Makes the Core Foundation object that stands for the value, with one reference that the caller owns.
[[nodiscard]] const void* makeCoreFoundationObject(const Property& property);

/// What the object was made from.
[[nodiscard]] const Property& propertyOf(const void* object);

} // namespace orvelle::simulated
