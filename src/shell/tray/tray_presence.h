#pragma once

#include <QString>

#include <chrono>

namespace orvelle {

/// Whether the desktop has a tray, by asking the bus at this address, empty for that of the user's session.
/// It needs no application object. No when the answer takes longer than `patience`.
[[nodiscard]] bool isTrayThere(const QString& busAddress = {},
                               std::chrono::milliseconds patience = std::chrono::milliseconds(500));

} // namespace orvelle
