#pragma once

#include <QString>

#include <chrono>
#include <optional>

namespace orvelle {

/// Why the desktop has no tray, by asking the bus at this address, empty for that of the user's session;
/// nothing when it has one. May be asked before the application object exists. A bus that does not answer
/// within `patience` counts as none.
[[nodiscard]] std::optional<QString>
trayAbsence(const QString& busAddress = {},
            std::chrono::milliseconds patience = std::chrono::milliseconds(500));

} // namespace orvelle
