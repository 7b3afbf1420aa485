#pragma once

#include <QJsonObject>

namespace orvelle {

class SystemMonitor;

/// Every published property of every monitor by its exact name, records as objects of their fields, an absent
/// optional as null; and the number of update cycles. A new property of a monitor needs no change here.
[[nodiscard]] QJsonObject publishedValues(SystemMonitor& monitor);

} // namespace orvelle
