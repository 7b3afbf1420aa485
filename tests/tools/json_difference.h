#pragma once

#include <QJsonValue>
#include <QString>

namespace orvelle {

/// Where two JSON values first differ and how, for a person to read; empty when they are equal. Two numbers
/// are equal up to the last digits, in which compilers and processors may differ.
[[nodiscard]] QString firstDifference(const QJsonValue& expected, const QJsonValue& actual,
                                      const QString& path = QStringLiteral("$"));

} // namespace orvelle
