#pragma once

#include <QString>
#include <QStringList>

#include <chrono>
#include <optional>

namespace orvelle {

/// Why no Wayland compositor can be reached by the environment that announces all these interfaces; nothing
/// when one does. A compositor that does not answer within `patience` counts as absent. May be asked before
/// the application object exists.
[[nodiscard]] std::optional<QString>
waylandAbsence(const QStringList& interfaces,
               std::chrono::milliseconds patience = std::chrono::milliseconds(2000));

} // namespace orvelle
