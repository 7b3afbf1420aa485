#pragma once

#include <QJsonObject>

namespace orvelle {

class Pseudonyms;

/// Published values with pseudonyms in the place of the names of processes, interfaces and volumes, and of
/// addresses. Sensors and numbers stay.
[[nodiscard]] QJsonObject withoutPrivateNames(QJsonObject values, Pseudonyms& pseudonyms);

} // namespace orvelle
