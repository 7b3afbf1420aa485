#pragma once

#include "platform/darwin/references.h"

#include <optional>

namespace orvelle::darwin_platform {

/// The first service of a class, such as "AppleSMC"; the null object when the machine has none.
[[nodiscard]] OwnedIOObject findService(const char* className);

/// An iterator over all services of a class, the null object where the system gives none for no services;
/// nothing when they cannot be looked up.
[[nodiscard]] std::optional<OwnedIOObject> findServices(const char* className);

/// The properties of a registry entry; null when they cannot be read.
[[nodiscard]] CFOwned<CFDictionaryRef> copyProperties(const OwnedIOObject& entry);

} // namespace orvelle::darwin_platform
