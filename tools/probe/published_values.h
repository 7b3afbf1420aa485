#pragma once

#include <QJsonObject>
#include <QStringList>

namespace orvelle {

class SystemMonitor;

/// Every published property of every monitor by its exact name, records as objects of their fields, an absent
/// optional as null; and the number of update cycles. A new property of a monitor needs no change here.
[[nodiscard]] QJsonObject publishedValues(SystemMonitor& monitor);

/// The first of the paths that leads to no published value; empty when all do. A path names a monitor, its
/// property and the fields of its record, with full stops between them: "memory.info.used". A list is one
/// value.
[[nodiscard]] QString firstUnknownPath(const QJsonObject& values, const QStringList& paths);

/// The values at these paths, each under its path.
[[nodiscard]] QJsonObject valuesAt(const QJsonObject& values, const QStringList& paths);

} // namespace orvelle
