#pragma once

#include <QString>
#include <QVariant>

#include <optional>

namespace orvelle {

/// The value of a property that may be absent: the text itself, or null.
[[nodiscard]] inline QVariant valueOrNull(const std::optional<QString>& text) {
    return text ? QVariant(*text) : QVariant::fromValue(nullptr);
}

} // namespace orvelle
